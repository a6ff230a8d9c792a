#include "frame/commandrunner.h"

#include "frame/screenregistry.h"
#include "tests/frame/testcompany.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const Command &commandOf(QLatin1StringView action)
{
    const auto all = commands();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Command &c) { return c.action == action; });
    if (found == all.end())
        throw std::out_of_range(action.data());
    return *found;
}

// Commands on screens that write down what is done to them.
class CommandRunnerTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { s_context = new TestContext; }
    static void TearDownTestSuite()
    {
        delete s_context;
        s_context = nullptr;
    }
    void TearDown() override
    {
        s_context->context.securityCheck = {};
        qDeleteAll(m_parent.findChildren<QWidget *>(Qt::FindDirectChildrenOnly));
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the hourglass is still there";
    }

    void addScreen(const QString &name)
    {
        const auto log = [this](const QString &step) { return [this, step](QWidget &) { done << step; }; };
        screens.add(name,
                    {.create =
                         [this, name](ScreenContext &, QWidget *parent) {
                             done << u"create"_s;
                             auto *screen = new QWidget(parent, Qt::Window);
                             screen->setObjectName(name);
                             return screen;
                         },
                     .refresh = log(u"refresh"_s),
                     .resetFilter = log(u"reset filter"_s),
                     .showHandler = log(u"show handler"_s),
                     .firstRecord = log(u"first"_s),
                     .post = log(u"post"_s)});
    }
    QStringList run(QLatin1StringView action)
    {
        done.clear();
        runner.run(commandOf(action), s_context->context);
        return done;
    }
    QWidget *screen(const QString &name) { return m_parent.findChild<QWidget *>(name); }

    ScreenRegistry screens;
    QStringList done;

private:
    QWidget m_parent;

protected:
    CommandRunner runner{screens, &m_parent};
    static inline TestContext *s_context = nullptr;
};

} // namespace

TEST_F(CommandRunnerTest, StepsOfACommandTheFirstAndTheSecondTime)
{
    struct Case
    {
        QLatin1StringView action;
        QString screen;
        QStringList first;
        QStringList second;
        bool shown;
    };
    const Case cases[] = {
        {"ActionViewTotals"_L1,
         u"frmInvTotals"_s,
         {u"create"_s, u"reset filter"_s},
         {u"refresh"_s, u"reset filter"_s, u"show handler"_s},
         true},
        {"ActionEditItems"_L1,
         u"frmItemsInv"_s,
         {u"create"_s, u"reset filter"_s},
         {u"reset filter"_s, u"show handler"_s},
         true},
        {"ActionEditUsage"_L1, u"frmUsages"_s, {u"create"_s}, {u"show handler"_s}, true},
        {"ActionEditItemTypes"_L1,
         u"frmItemTypesInv"_s,
         {u"create"_s, u"first"_s},
         {u"show handler"_s, u"first"_s},
         true},
        {"ActionEditVendors"_L1, u"frmVendors"_s, {u"create"_s}, {}, true},
        {"ActionPostReceipts"_L1, u"frmInvReceipts"_s, {u"create"_s, u"post"_s}, {u"post"_s}, false},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.action.data());
        addScreen(c.screen);
        EXPECT_EQ(run(c.action), c.first);
        ASSERT_NE(screen(c.screen), nullptr);
        EXPECT_EQ(screen(c.screen)->isVisible(), c.shown);
        EXPECT_EQ(run(c.action), c.second);
    }
}

TEST_F(CommandRunnerTest, MinimisedScreenComesBack)
{
    addScreen(u"frmVendors"_s);
    run("ActionEditVendors"_L1);
    screen(u"frmVendors"_s)->showMinimized();
    run("ActionEditVendors"_L1);
    EXPECT_FALSE(screen(u"frmVendors"_s)->isMinimized());
}

TEST_F(CommandRunnerTest, RefusedRightsDoNothing)
{
    addScreen(u"frmInvReceipts"_s);
    QStringList asked;
    s_context->context.securityCheck = [&](const QString &key, const QString &name) {
        asked << key + u'/' + name;
        return false;
    };
    EXPECT_EQ(run("ActionReceiveInventory"_L1), QStringList());
    EXPECT_EQ(run("ActionPostReceipts"_L1), QStringList());
    EXPECT_EQ(asked, (QStringList{u"InvReceipts/Inventory Receipts"_s, u"frmInvReceipts/Inventory Receipts"_s}));
}

TEST_F(CommandRunnerTest, OnlyEditUsageLeavesTheCursor)
{
    for (const auto &[action, name, busy] : {std::tuple("ActionEditUsage"_L1, u"frmUsages"_s, false),
                                             std::tuple("ActionEditVendors"_L1, u"frmVendors"_s, true)}) {
        bool seen = !busy;
        screens.add(name,
                    {.create =
                         [&seen](ScreenContext &, QWidget *parent) {
                             seen = QApplication::overrideCursor() != nullptr;
                             return new QWidget(parent, Qt::Window);
                         },
                     .refresh = {},
                     .resetFilter = {},
                     .showHandler = {},
                     .firstRecord = {},
                     .post = {}});
        run(action);
        EXPECT_EQ(seen, busy) << action.data();
    }
}

TEST_F(CommandRunnerTest, ModalSelectionIsFreed)
{
    QPointer<QWidget> dialog;
    screens.add(u"FormBlankInventoryReportSelection"_s,
                {.create =
                     [&dialog](ScreenContext &, QWidget *parent) {
                         dialog = new QDialog(parent);
                         QTimer::singleShot(0, dialog.data(), [&dialog] {
                             EXPECT_TRUE(dialog->isModal());
                             dialog->close();
                         });
                         return dialog.data();
                     },
                 .refresh = {},
                 .resetFilter = {},
                 .showHandler = {},
                 .firstRecord = {},
                 .post = {}});
    run("ActionPrintBlankInventoryForm"_L1);
    EXPECT_EQ(dialog, nullptr);
}

TEST_F(CommandRunnerTest, OpeningByNameKnowsOnlyScreensThatExist)
{
    addScreen(u"frmInvTotals"_s);
    QWidget *opened = runner.open(u"frmInvTotals"_s, s_context->context);
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(runner.open(u"frmInvTotals"_s, s_context->context), opened);
    EXPECT_EQ(runner.open(u"frmBanksInv"_s, s_context->context), nullptr);
}
