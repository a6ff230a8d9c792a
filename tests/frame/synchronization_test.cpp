#include "frame/synchronization.h"

#include "controls/commandscreen.h"
#include "engine/table.h"
#include "frame/commandrunner.h"
#include "frame/commands.h"
#include "tests/frame/testcompany.h"
#include "tests/support/failures.h"

#include <QApplication>
#include <QProgressBar>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const auto question = u"Confirm: Insert any Corvane locations into the \nLedgerwick locations table?"_s;
const auto done = u"inform: Succesfully completed the synchronization."_s;

class RefreshedList final : public QWidget, public CommandScreen
{
public:
    explicit RefreshedList(QStringList &refreshed)
        : m_refreshed(refreshed)
    {
    }
    void refreshList() override { m_refreshed << objectName(); }

private:
    QStringList &m_refreshed;
};

class SynchronizationTest : public testing::Test
{
protected:
    SynchronizationTest()
    {
        for (const QString &name : {u"frmWarehousesInv"_s, u"frmItemsInv"_s}) {
            screens.add(name, plainScreen());
            m_lists.emplace_back(refreshed).setObjectName(name);
        }
        database().connection().execute(
            u"INSERT INTO Locatns (Location_ID, Location) VALUES (7, 'North'); "
            "INSERT INTO Items (Item_ID, Meal_Item, Billed_Amount, Meal) VALUES (5, 'Soup', 1.5, 'L')"_s);
        context.lookups.tblWarehse().refresh();
    }
    ~SynchronizationTest() override
    {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the hourglass is still there";
        EXPECT_EQ(bar.value(), 0);
        EXPECT_EQ(bar.maximum(), 100);
    }

    Engine::Database &database() { return context.data.databaseTallymere(); }
    int count(Engine::Table &table) { return table.recordCount(); }

    TestContext context;
    SpokenPrompts &prompts = context.company.prompts;
    ScreenRegistry screens;
    QStringList refreshed;
    QProgressBar bar;

private:
    std::deque<RefreshedList> m_lists;
    CommandRunner m_runner{screens, nullptr};

protected:
    const CommandSite site{context.context, m_runner, bar};
};

} // namespace

TEST_F(SynchronizationTest, LocationsComeInAfterAYesOnly)
{
    prompts.ok = false;
    synchronizeLocations(site);
    EXPECT_EQ(prompts.take(), QStringList(question));
    EXPECT_EQ(count(context.lookups.tblWarehse()), 1);
    EXPECT_EQ(refreshed, QStringList());

    prompts.ok = true;
    prompts.onInform = [this] { EXPECT_EQ(bar.value(), bar.maximum()); };
    synchronizeLocations(site);
    EXPECT_EQ(prompts.take(), (QStringList{question, done}));
    EXPECT_EQ(count(context.lookups.tblWarehse()), 2) << "drop-down lists show what has come in";
    EXPECT_EQ(refreshed, QStringList(u"frmWarehousesInv"_s));
}
