#include "controls/screens/commandscreen.h"
#include "frame/figurebutton.h"
#include "master/screens/dialerinv.h"
#include "tests/frame/hoststub.h"

#include <QCloseEvent>
#include <QLoggingCategory>
#include <QProgressBar>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// A screen that writes down what is done to it, and may refuse to be closed.
class StubbornScreen final : public QWidget, public CommandScreen
{
public:
    StubbornScreen(QStringList &done, QWidget *parent)
        : QWidget(parent, Qt::Window)
        , m_done(done)
    {
        m_done << u"create"_s;
    }

    void refreshList() override { m_done << u"refresh"_s; }
    void showWaiting() override { m_done << u"what waits"_s; }
    void resetFilter() override { m_done << u"reset filter"_s; }
    void showAgain() override { m_done << u"show handler"_s; }
    void mnuPostClick() override { m_done << u"post"_s; }

    bool stubborn = false;

protected:
    void closeEvent(QCloseEvent *event) override { event->setAccepted(!stubborn); }

private:
    QStringList &m_done;
};

struct OpeningTest : HostedTest
{
    OpeningTest()
        : HostedTest(screensFor(this))
    {
    }
    ~OpeningTest() override { EXPECT_EQ(QApplication::overrideCursor(), nullptr); }

    // What the steps of a command are, in order.
    QString stepsOf(const QString &action)
    {
        done.clear();
        context->runAction(action);
        return done.join(u", "_s);
    }
    void openTotals() { form.findChild<QAction *>(u"mnuTotals"_s)->trigger(); }

    static ScreenRegistry screensFor(OpeningTest *test)
    {
        ScreenRegistry registry;
        for (const QString &name : {u"frmInvTotals"_s, u"frmWarehousesInv"_s, u"frmItemsInv"_s, u"frmUsages"_s,
                                    u"frmItemTypesInv"_s, u"frmVendors"_s, u"frmInvReceipts"_s}) {
            const auto create = [test, name](ScreenContext &given, QWidget *parent) {
                test->context = &given;
                test->screen = new StubbornScreen(test->done, parent);
                test->screen->setObjectName(name);
                return test->screen.data();
            };
            registry.add(name, {.create = create, .posts = true});
        }
        return registry;
    }

    QPointer<StubbornScreen> screen;
    ScreenContext *context = nullptr; // that the screen was given
    QStringList done; // to the screens
};

} // namespace

// For support, who asks for it.
TEST_F(OpeningTest, TellsItsStepsToTheTrace)
{
    static QStringList steps;
    steps.clear();
    QLoggingCategory::setFilterRules(u"tallymere.trace.debug=true"_s);
    const QtMessageHandler usual =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &of, const QString &text) {
            if (QByteArrayView(of.category) == "tallymere.trace")
                steps << text.section(u'(', 0, 0).left(30);
        });
    link(&host);
    EXPECT_TRUE(open());
    qInstallMessageHandler(usual);
    QLoggingCategory::setFilterRules({});
    EXPECT_EQ(steps.join(u'|'),
              u"Enter TFormTallymereSystem.Set|Exit TFormTallymereSystem.SetM|Enter TFormTallymereSystem.For|"
              "Sender QAction|About to create the DataModule|About to set the value for cMo|"
              "About to test for the value of|Mode is File Server|DataModuleTallymere.QuickRepor|"
              "About to show FormTallymereSys|Enter TFormTallymereSystem.For|Exit TFormTallymereSystem.Form|"
              "Exit TFormTallymereSystem.Form"_s);
}

TEST_F(OpeningTest, HostsMenuItemOpensTheSystemAgainAndAgain)
{
    link(&host);
    ASSERT_EQ(menu.actions().size(), 1);
    EXPECT_EQ(menu.actions().constFirst()->text(), u"Tallymere"_s);

    EXPECT_TRUE(open([this] {
        EXPECT_EQ(QApplication::activeModalWidget(), &form);
        EXPECT_EQ(form.findChildren<TfrmDialerInv *>().size(), 1);
    }));
    TDataModuleTallymere *const first = form.dataModule();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->currentUser(), u"maria"_s);
    EXPECT_EQ(form.helpFile(), u"HX1.hlp"_s);

    host.user = u"anna"_s;
    EXPECT_TRUE(open([this] { EXPECT_EQ(form.findChildren<TfrmDialerInv *>().size(), 1) << "a new one"; }));
    EXPECT_EQ(form.dataModule(), first);
    EXPECT_EQ(first->currentUser(), u"anna"_s);
    EXPECT_EQ(company.prompts.said, QStringList());
}

TEST_F(OpeningTest, WithoutAHostAnErrorIsShownAndNothingOpens)
{
    QWidget plain;
    for (QWidget *window : {static_cast<QWidget *>(nullptr), &plain}) {
        link(window);
        EXPECT_FALSE(open());
        const QStringList said = company.prompts.take();
        EXPECT_EQ(said.size(), 1);
        EXPECT_TRUE(has(said.value(0), u"user"_s));
    }
    EXPECT_EQ(menu.actions().size(), 2) << "one for each SetMenu";
}

TEST_F(OpeningTest, HostReferencesAreBalanced)
{
    form.init(&host);
    EXPECT_EQ(host.references, 1);
    form.init(nullptr);
    EXPECT_EQ(host.references, 0);
    {
        HostStub gone;
        form.init(&gone);
    }
    form.init(&host); // does not touch the one that is gone
    EXPECT_EQ(host.references, 1);
}

// A host that ends without unloading its module.
TEST_F(OpeningTest, HostMayTakeTheFormWithIt)
{
    auto *gone = new HostStub;
    auto *child = new TFormTallymereSystem(FrameServices{company.settings, company.prompts, screens}, gone);
    child->init(gone);
    QMenu *reference = &menu;
    child->setMenu(reference);
    QTimer::singleShot(0, child, [child, gone] {
        EXPECT_TRUE(child->isVisible());
        delete gone;
    });
    menu.actions().constFirst()->trigger(); // returns
    EXPECT_TRUE(menu.actions().isEmpty());
}

TEST_F(OpeningTest, MissingDatabaseIsShownAndTheNextOpeningTriesAgain)
{
    link(&host);
    company.settings.setRegString(Settings::Alias, u"/nowhere/kitchen"_s);
    EXPECT_FALSE(open());
    ASSERT_EQ(company.prompts.said.size(), 2); // the warning about the folder, then the engine's own words
    EXPECT_TRUE(company.prompts.said[0].startsWith(u"error: The Corvane database:\n/nowhere/kitchen\n"_s));
    EXPECT_EQ(form.dataModule(), nullptr);

    company.settings.setRegString(Settings::Alias, company.folder());
    EXPECT_TRUE(open());
}

TEST_F(OpeningTest, ClosingFreesTheScreensUnlessOneStays)
{
    link(&host);
    EXPECT_TRUE(open([this] {
        openTotals();
        ASSERT_NE(screen, nullptr);
        EXPECT_TRUE(screen->isVisible());
        screen->stubborn = true;
        form.findChild<QPushButton *>(u"BitBtnClose"_s)->click();
        EXPECT_TRUE(form.isVisible());
        screen->stubborn = false;
    }));
    EXPECT_FALSE(form.isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(screen, nullptr);
}

TEST_F(OpeningTest, WhileItIsOpenItsScreensAreUsableAndTheHostIsNot)
{
    int pressed = 0;
    const auto addButton = [&](QWidget &window) {
        auto *button = new QPushButton(&window);
        button->resize(window.size());
        button->show();
        QObject::connect(button, &QPushButton::clicked, &form, [&pressed] { ++pressed; });
    };
    // By the window, so that it takes the way of the user's clicks.
    const auto click = [](QWidget &window) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, window.rect().center());
    };
    link(&host);
    host.show();
    addButton(host);
    click(host);
    EXPECT_EQ(pressed, 1);
    EXPECT_TRUE(open([&] {
        openTotals();
        addButton(*screen);
        click(*screen);
        EXPECT_EQ(pressed, 2);
        click(host);
        EXPECT_EQ(pressed, 2);
    }));
}

// The synchronization is a command that more than the screen hears of.
TEST_F(OpeningTest, AScreenRunsItsCommands)
{
    link(&host);
    company.prompts.ok = false;
    const auto question = u"Confirm: Insert any Corvane locations into the \nLedgerwick locations table?"_s;
    EXPECT_TRUE(open([&] {
        openTotals();
        const QWidget *first = context->openScreen(u"frmWarehousesInv"_s);
        const QPointer<QWidget> another = context->openAnotherScreen(u"frmWarehousesInv"_s);
        EXPECT_TRUE(another && another != first && another->isVisible());
        delete another;
        context->runAction(u"ActionSynchronizeLocations"_s);
        form.findChild<QAction *>(u"mnuSynchronizeLocations"_s)->trigger();
        context->runAction(u"ActionPrintPayments"_s); // not available
        EXPECT_EQ(company.prompts.take(), QStringList(2, question));
        EXPECT_FALSE(done.contains(u"refresh"_s));

        context->data.databaseTallymere().connection().execute(
            u"INSERT INTO Locatns (Location_ID, Location) VALUES (7, 'North')"_s);
        EXPECT_EQ(context->lookups.tblWarehse().recordCount(), 1);
        company.prompts.ok = true;
        const auto *bar = form.findChild<QProgressBar *>(u"RzProgressBar1"_s);
        EXPECT_FALSE(bar->isVisible());
        company.prompts.onInform = [&] {
            EXPECT_EQ(bar->value(), bar->maximum());
            EXPECT_TRUE(bar->isVisible());
        };
        EXPECT_EQ(stepsOf(u"ActionSynchronizeLocations"_s), u"refresh"_s) << "of the list of locations";
        EXPECT_EQ(bar->value(), 0);
        EXPECT_FALSE(bar->isVisible());
        EXPECT_EQ(context->lookups.tblWarehse().recordCount(), 2) << "drop-down lists show what has come in";
    }));
}

TEST_F(OpeningTest, CommandsTakeTheirStepsTheFirstAndTheSecondTime)
{
    const std::tuple<QString, QString, QString, QString, bool> cases[] = {
        {u"ActionViewTotals"_s, u"frmInvTotals"_s, u"create, reset filter"_s,
         u"refresh, reset filter, show handler"_s, true},
        {u"ActionEditItems"_s, u"frmItemsInv"_s, u"create, reset filter"_s, u"reset filter, show handler"_s, true},
        {u"ActionEditUsage"_s, u"frmUsages"_s, u"create"_s, u"show handler"_s, true},
        {u"ActionEditItemTypes"_s, u"frmItemTypesInv"_s, u"create"_s, u"show handler"_s, true},
        {u"ActionEditVendors"_s, u"frmVendors"_s, u"create"_s, {}, true},
        {u"ActionPostReceipts"_s, u"frmInvReceipts"_s, u"create, post"_s, u"post"_s, false},
    };
    link(&host);
    EXPECT_TRUE(open([&] {
        openTotals();
        delete screen;
        for (const auto &[action, name, first, second, shown] : cases) {
            SCOPED_TRACE(qPrintable(action));
            EXPECT_EQ(stepsOf(action), first);
            EXPECT_EQ(form.findChild<QWidget *>(name)->isVisible(), shown);
            EXPECT_EQ(stepsOf(action), second);
        }
        QStringList asked;
        context->securityCheck = [&](const QString &key, const QString &name) {
            asked << key + u'/' + name;
            return false;
        };
        EXPECT_EQ(stepsOf(u"ActionReceiveInventory"_s), QString());
        EXPECT_EQ(stepsOf(u"ActionPostReceipts"_s), QString());
        EXPECT_EQ(asked,
                  (QStringList{u"InvReceipts/Inventory Receipts"_s, u"frmInvReceipts/Inventory Receipts"_s}));
    }));
}

TEST_F(OpeningTest, TodayTellsWhatWaitsEachTimeTheWindowComesToTheFrontAndOpensIt)
{
    link(&host);
    EXPECT_TRUE(open([&] {
        Engine::Connection &store = form.dataModule()->databaseTallymere().connection();
        auto &usage = *form.findChild<FigureButton *>(u"todayUsage"_s);
        auto &period = *form.findChild<FigureButton *>(u"todayPeriod"_s);
        auto &backup = *form.findChild<FigureButton *>(u"todayBackup"_s);
        const auto usageReadAgain = [&] {
            backup.setFigure({}, FigureButton::Tone::Usual, {}); // the last one
            QEvent front(QEvent::WindowActivate);
            QApplication::sendEvent(&form, &front);
            EXPECT_TRUE(comesTrue([&] { return !backup.figure().isEmpty(); }));
            return usage.figure();
        };
        EXPECT_EQ(usageReadAgain(), u"0"_s);
        store.execute(u"INSERT INTO IUsage (UsageID, UsageNo, WarehouseID, Posted) VALUES (1, '1', 1, false)"_s);
        EXPECT_EQ(usageReadAgain(), u"1"_s);
        EXPECT_EQ(usage.accessibleName(), u"Usage to post: 1"_s);

        backup.setFocus();
        EXPECT_EQ(form.findChild<QLabel *>(u"RzStatusPane1"_s)->text(), u"No backup of this database is known."_s);
        usage.setFocus();
        QTest::keyClick(&usage, Qt::Key_Return);
        EXPECT_EQ(done.join(u", "_s), u"create, what waits"_s);
        EXPECT_TRUE(screen && screen->objectName() == "frmUsages"_L1);

        store.execute(u"INSERT INTO IUsage (UsageID, UsageNo, WarehouseID, Posted) VALUES (2, '2', 1, false)"_s);
        form.dataModule()->databaseTallymere().session().serverChanged(true); // it is there again
        EXPECT_TRUE(comesTrue([&] { return usage.figure() == "2"_L1; }));
        store.execute(u"DELETE FROM IUsage WHERE UsageID = 2"_s);

        store.execute(u"ALTER TABLE IUsage RENAME TO IUsageGone"_s);
        EXPECT_EQ(usageReadAgain(), u"-"_s);
        EXPECT_EQ(period.figure(), u"-"_s);
        store.execute(u"ALTER TABLE IUsageGone RENAME TO IUsage"_s);
        EXPECT_EQ(usageReadAgain(), u"1"_s);
    }));
    EXPECT_EQ(company.prompts.said, QStringList());
}
