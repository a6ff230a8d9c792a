#include "controls/listgrid.h"
#include "controls/lookupcombobox.h"
#include "master/screens/itemsearchinv.h"
#include "tests/support/screentest.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

using ItemSearchScreen = ScreenTest;

TEST_F(ItemSearchScreen, FollowsWhatIsTyped)
{
    TfrmItemSearchInv search(*context, mainWindow.get());
    search.SetItemID(3);
    showActive(search);
    EXPECT_EQ(search.GetItemID(), 3);
    type("A11<Backspace>");
    EXPECT_EQ(search.GetItemID(), 2) << "taking a character away moves nothing";
    type("7<Return>");
    EXPECT_EQ(prompts.last(), u"error: Item not found"_s);
    EXPECT_TRUE(search.isVisible()) << "no number goes on so: not an item that was not asked for";
    child<QLineEdit>(search, "editFindItemDescription")->setFocus();
    type("ap");
    EXPECT_EQ(search.GetItemID(), 3) << "not Apples";
    child<LookupComboBox>(search, "cboItemType")->setFocus();
    type("food<Return>");
    EXPECT_TRUE(search.isVisible()) << "nobody has seen the items of the type yet";
    EXPECT_EQ(search.GetItemID(), 1);
    press(Qt::Key_Return);
    EXPECT_EQ(search.result(), QDialog::Accepted);

    kitchen.execute(u"DELETE FROM Item WHERE ItemID = 2"_s);
    search.SetItemID(3);
    search.SetItemID(2); // which is gone
    showActive(search);
    EXPECT_EQ(search.GetItemID(), 1);
    EXPECT_EQ(child<ListGrid>(search, "DBGrid1")->model()->rowCount(), 3) << "as they are by now";
    EXPECT_EQ(focusName(), u"editFindItemNo");
    EXPECT_EQ(child<QLineEdit>(search, "editFindItemNo")->text(), QString());
    EXPECT_EQ(child<LookupComboBox>(search, "cboItemType")->chosenId(), 0);
}
