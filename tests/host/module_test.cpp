#include "host/company.h"
#include "host/hostwindow.h"
#include "plgint/classregistry.h"
#include "tests/support/hostcompany.h"
#include "tests/support/screendriver.h"

#include <QFileInfo>
#include <QLibrary>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const QString moduleUnderTest = QStringLiteral(MODULE_FILE);

class ModuleTest : public testing::Test
{
protected:
    // Before the first settings object is made, which keeps the path.
    static void SetUpTestSuite()
    {
        static const QTemporaryDir own;
        qputenv("XDG_CONFIG_HOME", own.path().toLocal8Bit());
    }
    ModuleTest()
    {
        makeCompany(m_folder.path(), u"Harvest Table Kitchens"_s);
        useCompanyFolder(settings, m_folder.path());
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

TEST_F(ModuleTest, WhatCannotBeLoadedIsNamed)
{
    const QString noModule = QCoreApplication::applicationDirPath() + "/../lib/libtallymere_plgint.so"_L1;
    for (const QString &file : {u"/nowhere/plgTallymere.so"_s, noModule, QCoreApplication::applicationFilePath()}) {
        HostWindow window(settings, u"maria"_s, file);
        const QString text = window.findChild<QLabel *>(u"labelModule"_s)->text();
        EXPECT_TRUE(has(text, QFileInfo(file).fileName()));
        EXPECT_FALSE(inventoryMenu(window).isEnabled());
        EXPECT_TRUE(inventoryMenu(window).actions().isEmpty());
        EXPECT_EQ(ClassRegistry::instance().classNames(), QStringList());
    }
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
