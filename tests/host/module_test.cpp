#include "base/dataversion.h"
#include "data/datamodule.h"
#include "data/lastchoices.h"
#include "host/company.h"
#include "host/hostwindow.h"
#include "plgint/classregistry.h"
#include "tests/support/hostcompany.h"
#include "tests/support/screendriver.h"
#include "tests/support/spokenprompts.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QMessageBox>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const QString moduleUnderTest = QStringLiteral(MODULE_FILE);

struct ModuleTest : testing::Test
{
    // Before the first settings object is made, which keeps the path.
    static void SetUpTestSuite()
    {
        static const QTemporaryDir own;
        qputenv("XDG_CONFIG_HOME", own.path().toLocal8Bit());
    }
    ModuleTest()
    {
        makeCompany(m_folder.path(), u"Harvest Table Kitchens"_s);
        useBooks(settings, {.folder = m_folder.path()});
        // A window that comes by itself takes the focus from another at any moment.
        SpokenPrompts prompts;
        TDataModuleTallymere data(settings, prompts, {.dataFolder = m_folder.path(), .currentUser = u"maria"_s});
        Choices choices;
        choices.set(Settings::HidesFirstSteps, true);
        EXPECT_TRUE(LastChoices(Settings::firstStepsScreen, data, &settings).keep(choices));
    }
    static QWidget *mainForm(const HostWindow &window)
    {
        return window.findChild<QWidget *>(u"FormTallymereSystem"_s);
    }
    QMenu &inventoryMenu(HostWindow &window) { return *window.findChild<QMenu *>(u"menuInventory"_s); }

    SystemSettings settings;

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ModuleTest, StartedTwiceItIsRegisteredOnce)
{
    QLibrary library(moduleUnderTest);
    ASSERT_TRUE(library.load()) << qPrintable(library.errorString());
    const auto start = reinterpret_cast<void (*)()>(library.resolve("module_init"));
    const auto stop = reinterpret_cast<void (*)()>(library.resolve("module_done"));
    ASSERT_TRUE(start && stop);
    const auto count = [] { return ClassRegistry::instance().classNames().count(u"TFormTallymereSystem"_s); };
    start();
    start();
    EXPECT_EQ(count(), 1);
    EXPECT_FALSE(ClassRegistry::instance().registerClass(u"TFormTallymereSystem"_s,
                                                         [](QWidget *) -> QWidget * { return nullptr; }));
    stop();
    EXPECT_EQ(count(), 1);
    auto *databaseNameSlot = reinterpret_cast<QString *>(library.resolve("strDatabaseName"));
    ASSERT_NE(databaseNameSlot, nullptr);
    *databaseNameSlot = u"Corvane"_s;
    stop();
    EXPECT_EQ(count(), 0);
    EXPECT_EQ(*databaseNameSlot, QString());
    stop(); // once too often
    start();
    EXPECT_EQ(count(), 1);
    stop();
    EXPECT_EQ(count(), 0);
}

// In a process of its own, as a language holds for the whole of one.
TEST_F(ModuleTest, SpeaksTheLanguageOfItsFirstStartWhileItIsStarted)
{
    if (qEnvironmentVariableIsEmpty("TALLYMERE_TEST_ALONE"))
        GTEST_SKIP() << "is a test of its own";
    QLibrary library(moduleUnderTest);
    ASSERT_TRUE(library.load()) << qPrintable(library.errorString());
    const auto warning = [] { return QCoreApplication::translate("Base", "Warning"); };
    for (const QString &chosen : {u"de"_s, u"es"_s}) {
        settings.setValue(Settings::languageSection, Settings::ChosenLanguage, chosen);
        library.resolve("module_init")();
        EXPECT_EQ(warning(), u"Warnung"_s);
        library.resolve("module_done")();
        EXPECT_EQ(warning(), u"Warning"_s);
    }
}

TEST_F(ModuleTest, OpensFromTheMenuBeforeAndAfterAReload)
{
    HostWindow window(settings, u"maria"_s, moduleUnderTest);
    EXPECT_EQ(window.findChild<QLabel *>(u"labelCompany"_s)->text(), u"Harvest Table Kitchens"_s);
    auto &link = *child<QPushButton>(window, "linkModule");
    for (int round = 0; round < 3; ++round) {
        const auto expectUser = [](QWidget &modal) {
            EXPECT_EQ(child<QLabel>(modal, "RzStatusPane2")->text(), u"maria"_s);
        };
        EXPECT_TRUE(whileOpen<QWidget>([&] { window.openModule(); }, expectUser));
        EXPECT_TRUE(whileOpen<QWidget>([&] { link.click(); }, expectUser)) << "from the page as well";
        EXPECT_EQ(link.text(), inventoryMenu(window).actions().constFirst()->text());
        window.loadModule();
        ASSERT_EQ(inventoryMenu(window).actions().size(), 1);
    }
    EXPECT_TRUE(InterfaceRef<IPlugIn>::of(mainForm(window))->getIsModuleInstalled(u"ARSystem"_s));
    EXPECT_FALSE(InterfaceRef<IPlugIn>::of(mainForm(window))->getIsModuleInstalled(u"ARSystem "_s));
    window.unloadModule();
    EXPECT_TRUE(inventoryMenu(window).actions().isEmpty());
    EXPECT_FALSE(link.isEnabled());
    EXPECT_EQ(mainForm(window), nullptr);
    EXPECT_EQ(ClassRegistry::instance().classNames(), QStringList());
    window.openModule(); // nothing to open
}

TEST_F(ModuleTest, DataOptionsOfTheModuleAreTheHosts)
{
    const QTemporaryDir other;
    makeCompany(other.path(), u"Second Kitchen"_s);
    HostWindow window(settings, u"maria"_s, moduleUnderTest);
    const auto options = [&] { child<QAction>(window, "actionDataOptions")->trigger(); };
    EXPECT_TRUE(whileOpen<QDialog>(options, [&](QDialog &dialog) {
        EXPECT_EQ(dialog.objectName(), u"FormRegistryEditor"_s);
        child<QLineEdit>(dialog, "RzButtonEditDataPath")->setText(other.path());
        click(dialog, "BitBtnOK");
    }));
    EXPECT_EQ(window.findChild<QLabel *>(u"labelCompany"_s)->text(), u"Second Kitchen"_s);
    EXPECT_EQ(inventoryMenu(window).actions().size(), 1);
}

TEST_F(ModuleTest, LeadsToACompanyWhereThereIsNoneAndOpensItsInventory)
{
    const QTemporaryDir documents;
    const QString there = databaseFolder(settings);
    const QString folder = documents.filePath(u"Green Spoon"_s);
    settings.setRegString(Settings::Alias, {});
    HostWindow window(settings, u"maria"_s, moduleUnderTest);
    showActive(window);
    for (const char *link : {"linkNewCompany", "linkOpenCompany", "linkSample", "linkRestore"})
        EXPECT_TRUE(child<QWidget>(window, link)->isVisible()) << link;
    EXPECT_FALSE(child<QWidget>(window, "linkModule")->isVisible());
    EXPECT_FALSE(inventoryMenu(window).isEnabled());

    const auto begin = [] { press(Qt::Key_Return); };
    bool opened = false;
    QTimer inventory; // is closed as soon as it is there
    inventory.callOnTimeout([&] {
        if (QWidget *form = mainForm(window); form && form->isVisible())
            opened = form->close();
    });
    inventory.start(10);
    EXPECT_TRUE(whileOpen<QDialog>(begin, [&](QDialog &box) {
        type("Green Spoon");
        child<QLineEdit>(box, "editFolder")->setText(folder);
        click(box, "btnOK");
    }));
    EXPECT_TRUE(comesTrue([&] { return opened; }));
    EXPECT_EQ(child<QLabel>(window, "labelCompany")->text(), u"Green Spoon"_s);
    EXPECT_EQ(databaseFolder(settings), folder);
    EXPECT_FALSE(child<QWidget>(window, "linkNewCompany")->isVisible());

    // In the folder of others their books are offered, and nothing is made.
    const auto again = [&] { child<QAction>(window, "actionNewCompany")->trigger(); };
    EXPECT_TRUE(whileOpen<QDialog>(again, [&](QDialog &box) {
        child<QLineEdit>(box, "editName")->setText(u"Red Spoon"_s);
        child<QLineEdit>(box, "editFolder")->setText(there);
        EXPECT_TRUE(whileOpen<QMessageBox>([&] { click(box, "btnOK"); },
                                           [](QMessageBox &question) {
                                               EXPECT_TRUE(has(question.text(), u"Harvest Table Kitchens"_s));
                                               question.button(QMessageBox::No)->click();
                                           }));
        EXPECT_TRUE(box.isVisible());
    }));
    EXPECT_EQ(databaseFolder(settings), folder);

    opened = false;
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", documents.path().toUtf8());
    child<QAction>(window, "actionSampleCompany")->trigger();
    qputenv("HOME", home);
    EXPECT_TRUE(comesTrue([&] { return opened; }));
    EXPECT_TRUE(databaseFolder(settings).endsWith("Sample Company"_L1)) << qPrintable(databaseFolder(settings));
    EXPECT_TRUE(databaseFolder(settings).startsWith(documents.path()));
}

TEST_F(ModuleTest, BooksAreCaredForFromTheMenuOfTheHost)
{
    HostWindow window(settings, u"maria"_s, moduleUnderTest);
    for (const auto &[action, screen] : {std::pair("actionBackUp", u"frmBackUp"_s),
                                         {"actionCheckBooks", u"frmCheckBooks"_s},
                                         {"actionRestore", u"frmRestore"_s}}) {
        const auto choose = [&window, name = action] { child<QAction>(window, name)->trigger(); };
        EXPECT_TRUE(whileOpen<QDialog>(choose, [&name = screen](QDialog &dialog) {
            EXPECT_EQ(dialog.objectName(), name);
        })) << action;
    }
    window.unloadModule();
    EXPECT_FALSE(child<QAction>(window, "actionBackUp")->isEnabled());
    EXPECT_EQ(ClassRegistry::instance().classNames(), QStringList());
}

TEST_F(ModuleTest, TheDailyBackupIsMadeAtClosingAndNeverKeepsTheWindowOpen)
{
    const QTemporaryDir folder;
    settings.setValue(Settings::dailyBackup, Settings::BackupFolder, folder.path());
    const auto backups = [&folder] {
        return QDir(folder.path()).entryList({u"tallymere-daily-*.sqlite"_s}).size();
    };
    HostWindow window(settings, u"maria"_s, moduleUnderTest);
    EXPECT_TRUE(window.close());
    EXPECT_EQ(backups(), 0) << "not asked for";
    settings.setValue(Settings::dailyBackup, Settings::BackupDaily, true);
    const auto reset =
        qScopeGuard([this] { settings.setValue(Settings::dailyBackup, Settings::BackupDaily, false); });
    for (int closing = 0; closing < 2; ++closing) {
        window.show();
        EXPECT_TRUE(window.close());
        EXPECT_EQ(backups(), 1);
    }

    settings.setValue(Settings::dailyBackup, Settings::BackupFolder, folder.path() + "/gone"_L1);
    bool closed = true;
    const auto close = [&] { closed = window.close(); };
    const auto answerWith = [](const QString &word) {
        return [word](QMessageBox &box) {
            EXPECT_TRUE(has(box.text(), u"gone"_s));
            for (QAbstractButton *button : box.buttons())
                if (has(button->text().remove(u'&'), word))
                    return button->click();
            box.reject();
        };
    };
    window.show();
    EXPECT_TRUE(whileOpen<QMessageBox>(close, answerWith(u"no such button"_s)));
    EXPECT_FALSE(closed) << "the user wants it to stay";
    EXPECT_TRUE(whileOpen<QMessageBox>(close, answerWith(u"Close Without"_s)));
    EXPECT_TRUE(closed);
}

TEST_F(ModuleTest, WhatCannotBeLoadedIsNamedAndNotRun)
{
    const QString noModule = QCoreApplication::applicationDirPath() + "/../lib/libtallymere_plgint.so"_L1;
    const std::pair<QString, QString> cases[] = {
        {u"/nowhere/plgTallymere.so"_s, u"there is no file"_s},
        {noModule, u"is not an inventory module"_s},
        {QCoreApplication::applicationFilePath(), u"is not an inventory module"_s},
        {QStringLiteral(ANOTHER_RELEASE), u"is of release 1.0.0.7, and this program of " TALLYMERE_VERSION ""_s}};
    for (const auto &[file, reason] : cases) {
        HostWindow window(settings, u"maria"_s, file);
        const QString text = window.findChild<QLabel *>(u"labelModule"_s)->text();
        EXPECT_TRUE(has(text, QFileInfo(file).fileName()));
        EXPECT_TRUE(has(text, reason));
        EXPECT_FALSE(qEnvironmentVariableIsSet("ANOTHER_RELEASE_RAN"));
        EXPECT_FALSE(inventoryMenu(window).isEnabled());
        EXPECT_TRUE(inventoryMenu(window).actions().isEmpty());
        EXPECT_EQ(ClassRegistry::instance().classNames(), QStringList());
    }
}

TEST_F(ModuleTest, AboutCopiesAReportWithoutNamesAndPlaces)
{
    HostWindow window(settings, u"maria"_s, moduleUnderTest);
    EXPECT_TRUE(whileOpen<QWidget>([&] { window.openModule(); }, [](QWidget &) {}));
    const auto about = [&] { child<QAction>(window, "actionAbout")->trigger(); };
    EXPECT_TRUE(whileOpen<QDialog>(about, [](QDialog &box) {
        EXPECT_TRUE(has(child<QLabel>(box, "labelAbout")->text(), u"SQLite"_s));
        click(box, "buttonCopyReport");
    }));
    const QString report = QGuiApplication::clipboard()->text();
    for (const QString &told :
         {u"" TALLYMERE_VERSION ""_s, u"Data version: %1"_s.arg(dataVersion), u"Folder, SQLite"_s, u"Qt: "_s})
        EXPECT_TRUE(has(report, told));
    for (const QString &untold : {u"Harvest"_s, u"maria"_s, databaseFolder(settings)})
        EXPECT_FALSE(report.contains(untold)) << qPrintable(report);
}

// Assistive programs reach the menus of a window that a modal one stands over.
TEST_F(ModuleTest, nothingIsTakenFromUnderTheOpenModule)
{
    HostWindow window(settings, u"maria"_s, moduleUnderTest);
    window.show();
    EXPECT_TRUE(
        whileOpen<QWidget>([&] { window.openModule(); },
                           [&](QWidget &modal) {
                               for (const char *action : {"actionUnloadModule", "actionReloadModule", "actionExit"})
                                   child<QAction>(window, action)->trigger();
                               EXPECT_FALSE(window.close());
                               EXPECT_EQ(mainForm(window), &modal);
                               EXPECT_TRUE(modal.isVisible());
                           }));
    EXPECT_TRUE(window.close());
}
