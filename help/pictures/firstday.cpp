// Goes through the first day of a company by keyboard, from a program that knows none to a report, and takes its pictures:
//   tallymere-first-day MODULE WORK-FOLDER PICTURE-FOLDER [light|dark]
// Where a phone is to count, its link comes into the work folder, and three items of it are waited for.
// Home and settings are those of the environment; LANGUAGE says what is spoken. Each step waits for its window; where one does not
// come it says which, and what is there instead. scripts/first-day calls it.

#include "base/language.h"
#include "base/settingsstore.h"
#include "base/xlsxwriter.h"
#include "help/pictures/stage.h"
#include "host/hostlook.h"
#include "host/hostwindow.h"
#include "tests/support/scanner.h"

#include <cstdlib>
#include <deque>
#include <functional>
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSaveFile>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int itemCount = 200;

// As somebody has them in a spreadsheet, under headings of his own.
bool writeItems(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    XlsxWriter sheet(file, u"Items"_s);
    for (const QString &title : {u"ItemNo"_s, u"ItemDescription"_s, u"TypeName"_s, u"StandardCost"_s})
        sheet.title(title);
    sheet.endRecord();
    for (int item = 1; item <= itemCount; ++item) {
        sheet.field(u"G%1"_s.arg(1000 + item));
        sheet.field(u"Goods of shelf %1, place %2"_s.arg(1 + item / 20).arg(1 + item % 20));
        sheet.field(u"Goods"_s);
        sheet.field(Engine::Value(1.25 + item * 0.05));
        sheet.endRecord();
    }
    sheet.flush();
    return true;
}

class FirstDay
{
public:
    // In a window of the name, once it holds what is waited for.
    struct Step
    {
        const char *window;
        std::function<void()> act;
        const char *picture = nullptr; // before it
        std::function<bool(QWidget &)> isReady = {};
    };

    FirstDay(const QString &pictures, QString ending)
        : m_pictures(pictures)
        , m_ending(std::move(ending))
    {
    }

    void add(Step step) { m_steps.push_back(std::move(step)); }

    void begin()
    {
        constexpr int often = 50; // ms
        m_watch.callOnTimeout([this] { look(); });
        m_watch.start(often);
    }

private:
    // The one with the keyboard. Where there is no window manager nobody gives it to a dialog that comes after another. The
    // inventory's own window is modal to the host, and its screens are used over it.
    static QWidget *window()
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog && !dialog->isActiveWindow())
            dialog->activateWindow();
        return QApplication::activeWindow();
    }
    static QString nameOf(const QWidget *window)
    {
        if (!window)
            return u"none"_s;
        if (qobject_cast<const QFileDialog *>(window))
            return u"QFileDialog"_s;
        return window->objectName().isEmpty() ? QString::fromLatin1(window->metaObject()->className())
                                              : window->objectName();
    }

    void look()
    {
        constexpr int mostLooks = 1200; // a minute
        constexpr int longLooks = 100; // somebody would use the mouse by then
        constexpr int calmLooks = 8; // what is being read has come
        QWidget *there = window();
        Step &step = m_steps.front();
        const bool isHere =
            there && nameOf(there) == QString::fromLatin1(step.window) && (!step.isReady || step.isReady(*there));
        m_calm = isHere ? m_calm + 1 : 0;
        if (++m_looks > mostLooks)
            fail(there, step);
        if (!isHere && m_looks == longLooks)
            bringForward(step);
        if (m_calm < calmLooks)
            return;
        m_calm = m_looks = 0;
        const Step taken = std::move(m_steps.front());
        m_steps.pop_front();
        if (taken.picture)
            take(*there, QString::fromLatin1(taken.picture));
        if (m_steps.empty()) {
            std::fflush(stdout);
            std::_Exit(0);
        }
        QTimer::singleShot(0, taken.act);
    }

    static void bringForward(const Step &step)
    {
        for (QWidget *one : QApplication::topLevelWidgets()) {
            if (!one->isVisible() || nameOf(one) != QString::fromLatin1(step.window) || one->isActiveWindow())
                continue;
            std::printf("%s had to be brought to the front\n", step.window);
            one->activateWindow();
        }
    }

    void take(QWidget &there, const QString &name)
    {
        if (there.width() > there.screen()->availableGeometry().width())
            std::printf("%s is wider than the screen: %d\n", qPrintable(name), there.width());
        const QString file = m_pictures.filePath(u"%1%2.png"_s.arg(name, m_ending));
        if (!framed(there).save(file, nullptr, 0))
            std::fprintf(stderr, "%s was not saved\n", qPrintable(file));
    }

    [[noreturn]] void fail(QWidget *there, const Step &step)
    {
        const auto *told = there ? there->findChild<QLabel *>(u"qt_msgbox_label"_s) : nullptr;
        std::fprintf(stderr, "%s did not come, %s is there: %s\n", step.window, qPrintable(nameOf(there)),
                     told ? qPrintable(told->text()) : "");
        if (there)
            take(*there, u"failed"_s);
        std::_Exit(1);
    }

    std::deque<Step> m_steps;
    QTimer m_watch;
    int m_calm = 0;
    int m_looks = 0;
    QDir m_pictures;
    QString m_ending;
};

QWidget *part(const char *name)
{
    QWidget *window = QApplication::activeWindow();
    auto *found = window ? window->findChild<QWidget *>(QString::fromLatin1(name)) : nullptr;
    if (!found) {
        std::fprintf(stderr, "there is no %s\n", name);
        std::_Exit(1);
    }
    return found;
}

// The cursor goes there as by Tab, and the keys to it.
std::function<void()> keysIn(const char *name, const char *keys)
{
    return [name, keys] {
        part(name)->setFocus(Qt::TabFocusReason);
        type(keys);
    };
}

std::function<void()> keys(const char *text)
{
    return [text] { type(text); };
}

// As the window manager's key does.
std::function<void()> leave()
{
    return [] { QApplication::activeWindow()->close(); };
}

std::function<bool(QWidget &)> says(const char *label)
{
    return [label](QWidget &window) {
        const auto *found = window.findChild<QLabel *>(QString::fromLatin1(label));
        return found && found->isVisible() && !found->text().isEmpty();
    };
}

std::function<bool(QWidget &)> offers(const char *button)
{
    return [button](QWidget &window) {
        const auto *found = window.findChild<QPushButton *>(QString::fromLatin1(button));
        return found && found->isEnabled();
    };
}

// For a phone, which scans it from the screen.
std::function<void()> showLink(const QString &path)
{
    return [path] {
        const auto *link = qobject_cast<QLineEdit *>(part("edtLink"));
        QSaveFile file(path);
        if (!link || !file.open(QIODevice::WriteOnly) || file.write(link->text().toUtf8()) < 0 || !file.commit())
            std::_Exit(1);
    };
}

// The phone has sent so many.
std::function<bool(QWidget &)> hasCounted(int items)
{
    return [items](QWidget &window) {
        const auto *phones = window.findChild<QListWidget *>(u"lstPhones"_s);
        return phones && phones->count() > 0 && phones->item(0)->text().contains(QString::number(items));
    };
}

void plan(FirstDay &day, const QDir &folder)
{
    // A company
    day.add({"HostMainWindow", keys("<Return>"), "start"});
    day.add({"CompanyBox", keys("Green Spoon")});
    day.add({"CompanyBox", keysIn("btnTry", "<Space>")});
    day.add({"CompanyBox", keysIn("btnOK", "<Return>"), "newcompany", says("lblTried")});
    // Its calendar
    day.add({"frmFirstSteps", keysIn("firstPeriodShow", "<Return>"), "firststeps", says("lblLeft")});
    day.add({"frmCompany", keysIn("editDefaultPeriodPP", "11<Tab>26<Tab>"), "organization"});
    day.add({"frmCompany", keysIn("btnOK", "<Space>")});
    // A location, a type
    day.add({"frmFirstSteps", keysIn("firstLocationsHand", "<Return>")});
    day.add({"frmWarehousesInv", keysIn("btnNew", "<Space>")});
    day.add({"frmWarehouseInv", keys("Cold store")});
    day.add({"frmWarehouseInv", keysIn("btnOK", "<Space>")});
    day.add({"frmWarehousesInv", leave()});
    day.add({"frmFirstSteps", keysIn("firstTypesHand", "<Return>")});
    day.add({"frmItemTypesInv", keysIn("btnNew", "<Space>")});
    day.add({"frmItemTypeInv", keys("Goods")});
    day.add({"frmItemTypeInv", keysIn("chkInventory", "<Space>")});
    day.add({"frmItemTypeInv", keysIn("radioStandard", "<Space>")});
    day.add({"frmItemTypeInv", keysIn("btnOK", "<Space>")});
    day.add({"frmItemTypesInv", leave()});
    // Items of a spreadsheet
    day.add({"frmFirstSteps", keysIn("firstItemsFile", "<Return>"), "halfway"});
    day.add({"QFileDialog", [items = folder.absoluteFilePath(u"items.xlsx"_s)] {
                 QApplication::activeWindow()->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(items);
                 type("<Return>");
             }});
    day.add({"frmImport", keysIn("btnOK", "<Return>"), "import", offers("btnOK")});
    day.add({"messageBox", keys("<Return>"), "imported"});
    // A vendor
    day.add({"frmFirstSteps", keysIn("firstVendorsHand", "<Return>")});
    day.add({"frmVendors", keysIn("btnNew", "<Space>")});
    day.add({"frmVendor", keysIn("editVendorName", "Market Hall")});
    day.add({"frmVendor", keysIn("btnOK", "<Space>"), "vendor"});
    day.add({"frmVendors", leave()});
    // What is there
    day.add({"frmFirstSteps", keysIn("firstCountReceipt", "<Return>")});
    day.add({"frmInvReceipts", keysIn("btnNew", "<Space>")});
    day.add({"frmInvReceipt", keysIn("cboVendor", "Market<Tab>")});
    day.add({"frmInvReceipt", keysIn("cboWarehouse", "Cold<Tab>")});
    day.add({"frmInvReceipt", keys("<PgDown>")});
    day.add({"frmInvReceipt",
             keys("12<Return>G1001<Return><Return>1.30<Return>4<Return>G1007<Return><Return>1.60<Return>"
                  "30<Return>G1100<Return><Return>6.25<Return><Esc>")});
    day.add({"frmInvReceipt", keysIn("btnOK", "<Space>"), "firstcount"});
    day.add({"frmInvReceipts", leave()});
    // Not now, when the list asks; posted later
    day.add({"frmInvReceiptsPost", keys("<Esc>")});
    day.add({"frmFirstSteps", keysIn("firstCountReceipt", "<Return>"), "topost"});
    day.add({"frmInvReceiptsPost", keysIn("btnOK", "<Space>"), "posting"});
    // A delivery, by scanner, once in the wrong column
    day.add({"FormTallymereSystem", keysIn("ButtonReceiveGoods", "<Return>"), "afterwards"});
    day.add({"frmInvReceipts", keysIn("btnNew", "<Space>")});
    day.add({"frmInvReceipt", keysIn("cboVendor", "Market<Tab>")});
    day.add({"frmInvReceipt", keysIn("cboWarehouse", "Cold<Tab>")});
    day.add({"frmInvReceipt", keys("<PgDown>")});
    day.add({"frmInvReceipt", keys("6<Return>G1002<Return><Return>1.35<Return>")});
    day.add({"frmInvReceipt", [] { scan(u"G1003"_s); }, "scanning"});
    day.add({"frmInvReceipt", keys("8<Return><Return><Return>1.40<Return><Esc>"), "scanned"});
    day.add({"frmInvReceipt", keysIn("btnOK", "<Space>"), "delivery"});
    day.add({"frmInvReceipts", leave()});
    day.add({"frmInvReceiptsPost", keysIn("btnOK", "<Space>")});
    // A count, on a phone
    day.add({"FormTallymereSystem", keysIn("ButtonEnterInventory", "<Return>")});
    day.add({"FormEnterInventory", keysIn("RzComboBoxLocation", "Cold<Return>")});
    day.add({"FormEnterInventory", keysIn("btnPhone", "<Space>"), "count"});
    day.add({"frmPhoneCount", showLink(folder.absoluteFilePath(u"link"_s)), "link"});
    day.add({"frmPhoneCount", keysIn("btnStop", "<Space>"), "phone", hasCounted(3)});
    day.add({"FormEnterInventory", keysIn("BitBtnOK", "<Space>"), "counted"});
    day.add({"messageBox", keys("<Return>"), "calculate"});
    // A report
    day.add({"FormTallymereSystem", keysIn("ButtonPrintStatements", "<Return>")});
    day.add({"frmInvReports", keysIn("btnNext", "<Space>")});
    day.add({"frmInvReports", keysIn("btnOnScreen", "<Space>"), "choosing"});
    day.add({"frmPreview", keys(""), "report"});
}

} // namespace

int main(int argc, char *argv[])
{
    const std::optional<HostLook> look = lookNamed(QString::fromLocal8Bit(argc > 4 ? argv[4] : "light"));
    if (argc < 4 || argc > 5 || !look) {
        std::fprintf(stderr, "usage: tallymere-first-day MODULE WORK-FOLDER PICTURE-FOLDER [light|dark]\n");
        return 2;
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    takeLook(*look);
    SystemSettings settings;
    const Speaking speaking(languageToSpeak(settings), u":/corvane/translations"_s);
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    if (!writeItems(folder.absoluteFilePath(u"items.xlsx"_s)))
        return 1;
    HostWindow host(settings, u"maria"_s, QString::fromLocal8Bit(argv[1]));
    host.show();
    host.activateWindow();
    FirstDay day(QString::fromLocal8Bit(argv[3]), *look == HostLook::Dark ? u"-dark"_s : QString());
    plan(day, folder);
    day.begin();
    return QApplication::exec();
}
