#pragma once

#include "engine/store/session.h"

#include <QRect>
#include <QStringView>
#include <type_traits>

// Every setting that is kept, by its name, the type of its value, and what counts where nothing is kept or nothing of
// that type. Readers and writers name settings by these constants; the names are stored ones.

namespace Tallymere {

// A constant cannot hold a QString.
template <typename T> using DefaultOf = std::conditional_t<std::is_same_v<T, QString>, QLatin1StringView, T>;

// What is kept for each database, and shared with the host.
template <typename T> struct DatabaseSetting
{
    QStringView name;
    DefaultOf<T> byDefault{};
};

// What is kept for each screen, by its component name.
template <typename T> struct ScreenSetting
{
    QStringView name;
    DefaultOf<T> byDefault{};
};

// What a user chose last on a screen (LastChoices).
template <typename T> struct ChoiceSetting
{
    QLatin1StringView name;
    DefaultOf<T> byDefault{};
};

// What a user has kept on a screen, as many as he likes (LastChoices).
struct ListSetting
{
    QLatin1StringView name;
};

// What the host's initialization file says.
struct InitSetting
{
    QStringView section;
    QStringView name;
    QLatin1StringView byDefault = {};
};

namespace Settings {

// The database: what it is reached as, where it is (a folder, in either mode), and the way to its server.
inline constexpr DatabaseSetting<Engine::SessionType> Mode{u"Mode", Engine::SessionType::Local};
inline constexpr DatabaseSetting<QString> Alias{u"Alias"};
inline constexpr DatabaseSetting<QString> ServerAddress{u"Server IP"};
inline constexpr DatabaseSetting<Engine::LinkType> Connection{u"Connection", Engine::LinkType::Lan};
inline constexpr DatabaseSetting<bool> ReadsFromStandby{
    u"Read From Standby"}; // where what is read may be moments old

// Windows. The widths of a grid's columns are kept as a text under its component name.
inline constexpr ScreenSetting<QRect> Place{u"Place"};
inline constexpr ScreenSetting<bool> Maximized{u"Maximized"};
constexpr ScreenSetting<QString> columnWidths(QStringView grid) { return {grid}; }

// The folder that a file was saved in last, from whatever screen.
inline constexpr QStringView savingSection = u"SaveAsCsv";
inline constexpr ScreenSetting<QString> SavingFolder{u"Folder"};
inline constexpr ScreenSetting<bool> DefusesFormulas{u"DefusesFormulas"}; // in files for spreadsheets

// The language that the program speaks from its next start on, by its code; empty: the desktop's.
inline constexpr QStringView languageSection = u"Language";
inline constexpr ScreenSetting<QString> ChosenLanguage{u"Code"};

// Entering documents: Enter passes over what follows from the item of a line.
inline constexpr QStringView documentEntry = u"DocumentEntry";
inline constexpr ScreenSetting<bool> PassesKnown{u"PassesKnown"};

// The choice of a report. The period counts as long as the organization's default period is what it was then.
inline constexpr QStringView reportsScreen = u"frmInvReports";
inline constexpr ChoiceSetting<QString> Report{QLatin1StringView("report")};
inline constexpr ChoiceSetting<int> ItemType{QLatin1StringView("itemType")};
inline constexpr ChoiceSetting<int> ReportPeriod{QLatin1StringView("period")};
inline constexpr ChoiceSetting<int> ReportYear{QLatin1StringView("year")};
inline constexpr ChoiceSetting<QString> DefaultPeriod{QLatin1StringView("defaultPeriod")};

// The form that a count is written on.
inline constexpr QStringView blankFormScreen = u"FormBlankInventoryReportSelection";
inline constexpr ChoiceSetting<bool> ByCategory{QLatin1StringView("byCategory"), true};
inline constexpr ChoiceSetting<bool> PagePerCategory{QLatin1StringView("pagePerCategory")};
inline constexpr ChoiceSetting<bool> ZeroCounts{QLatin1StringView("zeroCounts")};
inline constexpr ChoiceSetting<bool> PriorQuantities{QLatin1StringView("priorQuantities")};
inline constexpr ChoiceSetting<bool> Barcodes{QLatin1StringView("barcodes")};

inline constexpr ChoiceSetting<int> Location{QLatin1StringView("location")}; // of both

// The count on the screen.
inline constexpr QStringView countScreen = u"FormEnterInventory";
inline constexpr ChoiceSetting<bool> BlindCount{QLatin1StringView("blind")};

// What to buy, and the end of a month.
inline constexpr QStringView buyingScreen = u"frmWhatToBuy";
inline constexpr ChoiceSetting<int> WeeksOfUse{QLatin1StringView("weeks"), 8};
inline constexpr ChoiceSetting<int> WeeksOfCover{QLatin1StringView("cover"), 2};
inline constexpr ChoiceSetting<bool> AlsoInStock{QLatin1StringView("alsoInStock")};
inline constexpr QStringView monthEndScreen = u"frmMonthEnd";
inline constexpr ChoiceSetting<QString> ClosedPeriod{QLatin1StringView("period")}; // that the others are about
inline constexpr ChoiceSetting<QString> CountedSince{QLatin1StringView("countedSince")};
inline constexpr ChoiceSetting<QString> ValuePrinted{QLatin1StringView("valuePrinted")}; // when

// What new books need.
inline constexpr QStringView firstStepsScreen = u"frmFirstSteps";
inline constexpr ChoiceSetting<bool> HidesFirstSteps{QLatin1StringView("hides")}; // at the start

// The backup of each day.
inline constexpr QStringView dailyBackup = u"DailyBackup";
inline constexpr ScreenSetting<bool> BackupDaily{u"On"};
inline constexpr ScreenSetting<QString> BackupFolder{u"Folder"};
inline constexpr ScreenSetting<int> BackupsKept{u"Kept", 14};

// What a user has opened last from the search over everything.
inline constexpr QStringView finderBox = u"boxFind";
inline constexpr ListSetting OpenedLast{QLatin1StringView("openedLast")};

// What the headings of files stood for that were brought in last, by the kind of file.
inline constexpr ListSetting ImportedHeadings{QLatin1StringView("headings")};

// The filters that a user has kept for a list, below the list's own settings.
inline constexpr QLatin1StringView keptFiltersSection{"/KeptFilters"};
inline constexpr ListSetting KeptFilters{QLatin1StringView("filters")};

// "HX1.ini".
inline constexpr InitSetting SampleData{u"Companies", u"Sample Data"};
inline constexpr InitSetting DialerPort{u"General", u"DialerPort", QLatin1StringView("com1")};
constexpr InitSetting dialerDevice(QStringView port) { return {u"Ports", port}; } // "COM1"

} // namespace Settings

} // namespace Tallymere
