#include "master/masterkinds.h"
#include "master/screens/masterlistscreen.h"
#include "master/screens/masterrecordscreen.h"
#include "master/screens/masterscreens.h"
#include "tests/support/screentest.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const QString strangeName = u"O'N \"5%\" [*] 🍮"_s;
const QString strangeTitle = u"O'N \"5%\" [*][*] 🍮"_s; // no mark of changes

struct MasterScreens : ScreenTest
{
    MasterScreens()
    {
        kitchen.execute(u"INSERT INTO ItemType (ItemTypeID, TypeName) VALUES (6, 'Other')"_s);
        theirs.open();
    }

    void openList(const MasterKind &kind)
    {
        const auto found = std::find_if(masterScreens().begin(), masterScreens().end(),
                                        [&](const MasterScreen &screen) { return &screen.kind == &kind; });
        ASSERT_NE(found, masterScreens().end());
        list = found->make(*context, mainWindow.get());
        grid = child<QTableView>(*list, "DBGrid1");
        showActive(*list);
    }
    // The record's screen that the list has opened.
    void takeRecord(const MasterKind &kind) { record = opened<MasterRecordScreen>(kind.record.screen); }
    // The row that the list stands on, or that of a key.
    void openAgain(const MasterKind &kind, std::optional<int> key = {})
    {
        EXPECT_TRUE(!key || list->moveToKey(*key));
        showActive(*list);
        press(Qt::Key_Return);
        takeRecord(kind);
    }
    QStringList currentRow() { return rowOf(*grid, grid->currentIndex().row()); }

    std::unique_ptr<TestUser> anna = kitchen.anotherUser();
    MasterRecord theirs{anna->database, MasterKinds::currency()};
    QPointer<MasterListScreen> list;
    QPointer<MasterRecordScreen> record;
    QTableView *grid = nullptr;
};

} // namespace

TEST_F(MasterScreens, EnterFindChangeAndDeleteRecords)
{
    const MasterKind &kind = MasterKinds::itemType();
    openList(kind);
    const int rowsBefore = grid->model()->rowCount();
    click(*list, "btnNew");
    takeRecord(kind);
    type(strangeName);
    press(Qt::Key_Return);
    for (const char *field : {"chkInventory", "radioStandard"}) {
        typeIn(*record, field, " ");
        press(Qt::Key_Return); // as Tab
    }
    click(*record, "btnOK");
    EXPECT_TRUE(isGone(record));
    EXPECT_EQ(prompts.told(), QString());
    EXPECT_EQ(grid->model()->rowCount(), rowsBefore + 1);
    EXPECT_EQ(currentRow(), QStringList(strangeName)) << "the list stands on it";
    EXPECT_TRUE(kitchen.rows(u"SELECT TypeName, ItemTypeID, Inventory, CostingMethod FROM ItemType"_s)
                    .contains(strangeName + u"|7|true|2"_s));

    // opened again and changed
    openAgain(kind);
    EXPECT_EQ(record->windowTitle(), strangeTitle);
    type("Zz");
    const auto closeWith = [this](Answer answer) {
        prompts.answer = answer;
        record->close();
        settle();
        EXPECT_EQ(prompts.told(), u"Do you want to save changes?");
    };
    closeWith(Answer::No);
    EXPECT_EQ(currentRow(), QStringList(strangeName));
    openAgain(kind);
    type("Zz");
    closeWith(Answer::Yes);
    EXPECT_EQ(currentRow(), QStringList(u"Zz"_s));

    // deleted, with its screen
    openAgain(kind);
    showActive(*list);
    click(*list, "btnDelete");
    EXPECT_EQ(prompts.told(), u"Confirm: Delete 'Zz'?");
    EXPECT_EQ(grid->model()->rowCount(), rowsBefore);
    EXPECT_TRUE(isGone(record));
}

TEST_F(MasterScreens, KeepTheTypesOfTheSystem)
{
    openList(MasterKinds::itemType());
    ASSERT_TRUE(list->moveToKey(6));
    click(*list, "btnDelete");
    EXPECT_EQ(prompts.told(), u"warn: System-defined Item Types can't be deleted!");
    EXPECT_TRUE(list->moveToKey(6));
}

TEST_F(MasterScreens, SayAtOnceThatSomebodyElseHasTheRecord)
{
    ASSERT_TRUE(theirs.openRecord(2));
    theirs.table().edit();
    openList(MasterKinds::currency());
    openAgain(MasterKinds::currency(), 2);
    const auto *notice = child<QLabel>(*record, "lblInUse");
    EXPECT_TRUE(notice->isVisible());
    EXPECT_TRUE(begins(notice->text(), u"In use by anna on "_s) && has(notice->text(), u", since "_s));
    EXPECT_EQ(prompts.told(), QString());
    const auto *edit = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    ASSERT_TRUE(edit && edit->isReadOnly());
    theirs.table().cancel();
    type("Mine");
    EXPECT_EQ(edit->text(), u"Mine"_s) << "free, and not looked at again yet";
    showActive(*list);
    showActive(*record);
    settle();
    EXPECT_FALSE(notice->isVisible());
    EXPECT_EQ(prompts.told(), QString());
}

// Whatever somebody else does to a record that is shown, the user is told and nothing of it is lost.
TEST_F(MasterScreens, TellOfOtherUsers)
{
    openList(MasterKinds::currency());
    openAgain(MasterKinds::currency(), 2);

    ASSERT_TRUE(theirs.openRecord(2));
    theirs.table().edit();
    type("M");
    ASSERT_EQ(prompts.said.size(), 1);
    EXPECT_TRUE(prompts.take().first().startsWith("error: 'Far' is being edited by another user (anna"_L1));
    EXPECT_EQ(child<QLineEdit>(*record, "editCurrencyName")->text(), u"Far");
    EXPECT_EQ(record->windowTitle(), u"Far");
    click(*list, "btnDelete");
    EXPECT_EQ(prompts.said.size(), 2);
    EXPECT_TRUE(prompts.take().last().startsWith("error: 'Far' is being edited by another user (anna"_L1));
    theirs.table().set(u"ExchangeRate", 0.5);
    theirs.save();

    type("Mine");
    click(*record, "btnOK");
    settle();
    EXPECT_EQ(kitchen.found(u"SELECT CurrencyName, ExchangeRate FROM Currency WHERE CurrencyID = 2"_s), u"Mine|0.5")
        << "both changes are kept";

    openAgain(MasterKinds::currency());
    kitchen.execute(u"DELETE FROM Currency"_s);
    const QString gone = u"error: '%1' was deleted by another user."_s;
    type("M");
    EXPECT_EQ(prompts.told(), gone.arg(u"Mine"));
    EXPECT_EQ(child<QLineEdit>(*record, "editCurrencyName")->text(), u"Mine");
    record->close();
    EXPECT_TRUE(isGone(record));
    ASSERT_TRUE(list->moveToKey(1));
    click(*list, "btnDelete");
    EXPECT_EQ(prompts.take(), (QStringList{u"Confirm: Delete 'Home'?"_s, gone.arg(u"Home")}));
    EXPECT_EQ(grid->model()->rowCount(), 0) << "the list has been read anew";
}
