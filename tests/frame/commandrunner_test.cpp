#include "frame/commandrunner.h"

#include "controls/commandscreen.h"
#include "tests/frame/testcompany.h"

#include <QApplication>
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

class LoggedScreen final : public QWidget, public CommandScreen
{
public:
    LoggedScreen(QStringList &done, QWidget *parent)
        : QWidget(parent, Qt::Window)
        , m_done(done)
    {
    }

    void refreshList() override { m_done << u"refresh"_s; }
    void resetFilter() override { m_done << u"reset filter"_s; }
    void showAgain() override { m_done << u"show handler"_s; }
    void mnuPostClick() override { m_done << u"post"_s; }

private:
    QStringList &m_done;
};

// Commands on screens that write down what is done to them.
class CommandRunnerTest : public testing::Test
{
protected:
    void TearDown() override
    {
        qDeleteAll(m_parent.findChildren<QWidget *>(Qt::FindDirectChildrenOnly));
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the hourglass is still there";
    }

    void addScreen(const QString &name)
    {
        const auto create = [this, name](ScreenContext &, QWidget *parent) {
            done << u"create"_s;
            auto *screen = new LoggedScreen(done, parent);
            screen->setObjectName(name);
            return screen;
        };
        screens.add(name, {.create = create, .posts = true});
    }
    QStringList run(QLatin1StringView action)
    {
        done.clear();
        runner.run(commandOf(action), context.context);
        return done;
    }
    QWidget *screen(const QString &name) { return m_parent.findChild<QWidget *>(name); }

    ScreenRegistry screens;
    QStringList done;

private:
    QWidget m_parent;

protected:
    CommandRunner runner{screens, &m_parent};
    TestContext context;
};

} // namespace

TEST_F(CommandRunnerTest, StepsOfACommandTheFirstAndTheSecondTime)
{
    const std::tuple<QLatin1StringView, QString, QString, QString, bool> cases[] = {
        {"ActionViewTotals"_L1, u"frmInvTotals"_s, u"create, reset filter"_s,
         u"refresh, reset filter, show handler"_s, true},
        {"ActionEditItems"_L1, u"frmItemsInv"_s, u"create, reset filter"_s, u"reset filter, show handler"_s, true},
        {"ActionEditUsage"_L1, u"frmUsages"_s, u"create"_s, u"show handler"_s, true},
        {"ActionEditItemTypes"_L1, u"frmItemTypesInv"_s, u"create"_s, u"show handler"_s, true},
        {"ActionEditVendors"_L1, u"frmVendors"_s, u"create"_s, {}, true},
        {"ActionPostReceipts"_L1, u"frmInvReceipts"_s, u"create, post"_s, u"post"_s, false},
    };
    for (const auto &[action, name, first, second, shown] : cases) {
        SCOPED_TRACE(action.data());
        addScreen(name);
        EXPECT_EQ(run(action).join(u", "_s), first);
        ASSERT_NE(screen(name), nullptr);
        EXPECT_EQ(screen(name)->isVisible(), shown);
        EXPECT_EQ(run(action).join(u", "_s), second);
    }
}

TEST_F(CommandRunnerTest, RefusedRightsDoNothing)
{
    addScreen(u"frmInvReceipts"_s);
    QStringList asked;
    context.context.securityCheck = [&](const QString &key, const QString &name) {
        asked << key + u'/' + name;
        return false;
    };
    EXPECT_EQ(run("ActionReceiveInventory"_L1), QStringList());
    EXPECT_EQ(run("ActionPostReceipts"_L1), QStringList());
    EXPECT_EQ(asked, (QStringList{u"InvReceipts/Inventory Receipts"_s, u"frmInvReceipts/Inventory Receipts"_s}));
}

TEST_F(CommandRunnerTest, CommandsGoOnToLeadToTheFirstOfSeveralScreens)
{
    const auto name = u"frmInvTotals"_s;
    addScreen(name);
    QWidget *first = runner.openAnother(name, context.context);
    ASSERT_NE(first, nullptr);
    QWidget *further = runner.openAnother(name, context.context);
    EXPECT_NE(further, first);
    EXPECT_TRUE(first->isVisible() && further->isVisible());
    EXPECT_EQ(runner.open(name, context.context), first);
    delete first;
    EXPECT_NE(runner.open(name, context.context), further);
    EXPECT_EQ(runner.openAnother(u"frmBanksInv"_s, context.context), nullptr);
}
