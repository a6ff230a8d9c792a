#include "controls/grids/listgrid.h"
#include "master/screens/iteminv.h"
#include "master/screens/itemsearchinv.h"
#include "master/screens/itemsfind.h"
#include "master/screens/itemsinv.h"
#include "master/screens/itemtypeinv.h"
#include "tests/support/screentest.h"
#include "transactions/screens/invtotals.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct ItemScreens : ScreenTest
{
    void openList()
    {
        list = openScreen<TfrmItemsInv>();
        grid = child<QTableView>(*list, "DBGrid1");
    }
    void openItem(int key = 1)
    {
        if (!list)
            openList();
        showActive(*list);
        ASSERT_TRUE(list->moveToKey(key));
        press(Qt::Key_Return);
        takeItem();
    }
    void takeItem() { item = opened<TfrmItemInv>(u"frmItemInv"_s); }
    void clickList(const char *button) { click(*list, button); }
    void clickItem(const char *button) { click(*item, button); }
    // Types over what stands in a field of the item, and moves on.
    void enter(const char *field, const char *text)
    {
        typeOver(*item, field, text);
        press(Qt::Key_Return);
    }
    QString shown(const char *field) { return child<QLineEdit>(*item, field)->text(); }
    LookupComboBox *typeBox() { return child<LookupComboBox>(*item, "cboItemType"); }
    QString stored(const QString &number)
    {
        return kitchen.found(u"SELECT ItemID, ItemDescription, TaxCodes, ItemTypeID, UnitPrice, WgtAvgCost, "
                             "StandardCost, Suspended, Notes FROM Item WHERE ItemNo = '%1'"_s,
                             number);
    }
    // Stands for the main window, which shows the screen that is led to.
    template <typename Screen> Screen *offer()
    {
        auto *screen = new Screen(*context, mainWindow.get());
        context->hasScreen = [screen](const QString &name) { return name == screen->objectName(); };
        context->openScreen = [screen](const QString &) {
            showActive(*screen);
            return screen;
        };
        return screen;
    }

    QPointer<TfrmItemsInv> list;
    QPointer<TfrmItemInv> item;
    QTableView *grid = nullptr;
};

} // namespace

TEST_F(ItemScreens, NumberCheckAndSaveNewItemsOneAfterTheOther)
{
    openList();
    clickList("btnNew");
    takeItem();
    clickItem("btnSaveAndNew");
    EXPECT_EQ(prompts.told(), u"error: Field 'Description' must have a value") << "it stays";
    typeIn(*item, "memoNotes", "Keep<Return>cool");
    focusOn(*item, "editItemDescription");
    type(u"Crème 🍮 50%"_s);
    press(Qt::Key_Return);
    enter("editTaxCodes", "p1G?xY");
    enter("editStandardCost", "12.5");
    EXPECT_EQ(shown("editStandardCost"), u"12.50");
    typeIn(*item, "cboItemType", "go<Return>");
    EXPECT_EQ(typeBox()->currentText(), u"Goods");
    kitchen.execute(u"DELETE FROM ItemType WHERE ItemTypeID = 2"_s);
    enter("editItemNo", "B10");
    clickItem("btnOK");
    EXPECT_EQ(prompts.told(), u"error: Item Type no longer exists");
    EXPECT_EQ(focusName(), u"cboItemType");
    type("fo");
    clickItem("btnSaveAndNew");
    EXPECT_EQ(stored(u"B10"_s), u"10000|Crème 🍮 50%|pGx|1|||12.5|false|Keep\ncool"_s);
    EXPECT_EQ(list->dataSet().text(u"ItemNo"), u"B10");
    enter("editItemNo", "C2");
    enter("editItemDescription", "Curry");
    typeIn(*item, "cboItemType", "fo<Return>");
    clickItem("btnOK");
    EXPECT_TRUE(isGone(item));
    EXPECT_EQ(list->dataSet().text(u"ItemNo"), u"C2");
}

TEST_F(ItemScreens, UnlockTheAverageCostOnlyOnPurpose)
{
    kitchen.execute(u"UPDATE Item SET WgtAvgCost = 2.345, ItemTypeID = 1 WHERE ItemID = 1"_s);
    TheirTable theirs(kitchen, u"Item"_s);
    ASSERT_TRUE(theirs.findKey({1}));
    theirs.edit();
    openItem();
    EXPECT_FALSE(child<QCheckBox>(*item, "chkReadOnly")->isEnabled());
    theirs.cancel();
    showActive(*list);
    showActive(*item); // which sees that it is free, and locks nothing but the cost
    typeIn(*item, "editWgtAvgCost", "9");
    EXPECT_EQ(shown("editWgtAvgCost"), u"2.345");
    clickItem("chkReadOnly");
    type("3");
    clickItem("chkReadOnly");
    EXPECT_TRUE(child<QLineEdit>(*item, "editWgtAvgCost")->isReadOnly());
    QObject::connect(item, &EntryScreen::saved, item,
                     [] { throw Engine::EngineError(Engine::ErrorCode::ConnectionLost, u"gone"_s); });
    clickItem("btnOK");
    EXPECT_TRUE(isGone(item)) << "although the list cannot follow";
    EXPECT_EQ(stored(u"A10"_s), u"1|Apples||1||3||false|"_s);
    EXPECT_EQ(prompts.told(), QString());
}

TEST_F(ItemScreens, LeadToTheTypes)
{
    auto *types = offer<TfrmItemTypesInv>();
    QString asked;
    bool allowed = false;
    context->securityCheck = [&](const QString &key, const QString &name) {
        asked = key + u'/' + name;
        return allowed;
    };
    openItem(3);
    clickItem("btnItemType");
    EXPECT_EQ(asked, u"ItemTypes/Item Types"_s);
    EXPECT_FALSE(types->isVisible());
    allowed = true;
    clickItem("btnItemType");
    EXPECT_TRUE(types->isVisible());
    EXPECT_EQ(types->dataSet().text(u"TypeName"), u"Goods");
    showActive(*item);
    typeBox()->setFocus();
    press(Qt::Key_Delete);
    types->applyFilter(u"(ItemTypeID = 2)"_s);
    clickItem("btnItemType");
    EXPECT_FALSE(types->dataSet().isFiltered());
    EXPECT_EQ(types->dataSet().text(u"TypeName"), u"Food") << "the first";
}

// A row that arrow keys or letters have brought up in a look-up box is a choice like any other, made or not.
TEST_F(ItemScreens, KeepAChoiceThatIsStillOpen)
{
    const auto choose = [this](const char *letters) {
        openItem(); // of type "Food"
        typeIn(*item, "cboItemType", letters);
    };
    const auto storedType = [this] { return kitchen.number(u"SELECT ItemTypeID FROM Item WHERE ItemID = 1"_s); };
    openList();
    choose("g");
    prompts.answer = Answer::Yes;
    item->close();
    EXPECT_TRUE(isGone(item));
    EXPECT_EQ(prompts.told(), u"Do you want to save changes?");
    EXPECT_EQ(storedType(), 2);

    choose("f");
    press(Qt::Key_Escape);
    item->close();
    EXPECT_TRUE(isGone(item)) << "taken back";
    choose("f");
    QTest::mouseClick(child<QPushButton>(*item, "btnCancel"), Qt::LeftButton);
    settle();
    EXPECT_EQ(prompts.told(), QString());
    EXPECT_EQ(storedType(), 2);
}

// Whatever key or click makes the choice, the user is told before anything closes, and the box goes back.
TEST_F(ItemScreens, RefuseAChoiceOfAnItemThatAnotherUserEdits)
{
    TheirTable theirs(kitchen, u"Item"_s);
    ASSERT_TRUE(theirs.findKey({1}));
    openItem();
    theirs.edit();
    const std::function<void()> choices[] = {
        [] { press(Qt::Key_Down); },
        [] { type("g"); },
        [] { press(Qt::Key_Delete); },
        [this] {
            typeBox()->setCurrentIndex(1);
            Q_EMIT typeBox()->activated(1); // picked from the open list
            clickItem("btnOK"); // in the same breath
        },
    };
    for (const auto &choice : choices) {
        typeBox()->setFocus();
        choice();
        QCoreApplication::processEvents();
        ASSERT_EQ(prompts.said.size(), 1);
        EXPECT_TRUE(prompts.take().first().contains("is being edited by another user"_L1));
        EXPECT_EQ(typeBox()->currentText(), u"Food"_s);
        ASSERT_TRUE(item && item->isVisible());
    }
}

// The window that everything belongs to closes them one after the other: each comes up, says which it is, and stays
// where its check has refused.
TEST_F(ItemScreens, AskInFrontAndByNameWhenClosedFromElsewhere)
{
    openItem();
    enter("editItemDescription", "Pears");
    type("<Backtab><Del>");
    showActive(*list);
    prompts.answer = Answer::Yes;
    item->close();
    EXPECT_EQ(prompts.told(),
              u"Do you want to save changes?\n\nItem 'A10: Pears'\nerror: Field 'Description' must have a value");
    ASSERT_TRUE(item && item->isVisible());
    EXPECT_TRUE(comesTrue([this] { return QApplication::activeWindow() == item; }));
    EXPECT_EQ(focusName(), u"editItemDescription");
    item->close();
    EXPECT_EQ(prompts.take().value(0), u"Do you want to save changes?"_s) << "in front already";
}

TEST_F(ItemScreens, NarrowTheListAndFindInIt)
{
    openList();
    const auto filter = [this](const std::function<void(TfrmItemsFilter &)> &choose) {
        const auto open = [this] { clickList("btnFilter"); };
        EXPECT_TRUE(whileOpen<TfrmItemsFilter>(open, [&](TfrmItemsFilter &dialog) {
            choose(dialog);
            press(Qt::Key_Return);
        }));
    };
    filter([](TfrmItemsFilter &dialog) {
        dialog.SetItemTypeID(2);
        type("<Tab><Tab><Left>"); // past the words, from the chosen one
    });
    EXPECT_EQ(list->dataSet().filter(), u"(ItemTypeID = 2) AND (Suspended = false)");
    EXPECT_TRUE(list->command(u"mnuFilter"_s)->isChecked());
    list->resetFilter(); // as the main window does
    filter([](TfrmItemsFilter &dialog) { EXPECT_EQ(dialog.GetItemTypeID(), 0); });
    EXPECT_FALSE(list->dataSet().isFiltered());
    showActive(*list);
    EXPECT_TRUE(whileOpen<TfrmItemsFind>([] { type("<Ctrl+F>"); }, [](TfrmItemsFind &) { type("b1<Return>"); }));
    EXPECT_EQ(list->dataSet().text(u"ItemNo"), u"B1") << "letter case is second";
}

TEST_F(ItemScreens, LeadToTheStockOfAnItem)
{
    auto *totals = offer<TfrmInvTotals>();
    kitchen.setStock(1, 1, 10, 2);
    kitchen.setStock(3, 1, 5, 2);
    openList();
    ASSERT_TRUE(list->moveToKey(3));
    list->command(u"mnuTotals"_s)->trigger();
    EXPECT_EQ(totals->dataSet().filter(), u"(ItemID = 3)");
    kitchen.setStock(3, 2, 1, 2);
    list->command(u"mnuTotals"_s)->trigger();
    EXPECT_EQ(totals->dataSet().recordCount(), 2) << "as it is now";
}

TEST_F(ItemScreens, SearchAnItemByWhatIsTyped)
{
    TfrmItemSearchInv search(*context, mainWindow.get());
    const auto itemAfter = [&](const char *field, const char *keys) {
        typeOver(search, field, keys);
        return search.GetItemID();
    };
    search.SetItemID(3);
    showActive(search);
    EXPECT_EQ(search.GetItemID(), 3);
    EXPECT_EQ(itemAfter("editFindItemNo", "A11<Backspace>"), 2) << "taking a character away moves nothing";
    EXPECT_EQ(itemAfter("editFindItemNo", "BREAD"), 3) << "B1 is the last that fitted";
    EXPECT_EQ(itemAfter("editFindItemNo", "<F3>"), 2) << "but there are such words";
    EXPECT_EQ(itemAfter("editFindItemDescription", "ap"), 3) << "not Apples";
    EXPECT_EQ(itemAfter("editFindItemDescription", "<F3>"), 1) << "the next one anywhere, of whatever case";
    EXPECT_EQ(itemAfter("cboItemType", "food<Return>"), 1);
    EXPECT_TRUE(search.isVisible()) << "nobody has seen the items of the type yet";
    press(Qt::Key_Return);
    EXPECT_EQ(search.result(), QDialog::Accepted);

    kitchen.execute(
        u"DELETE FROM Item WHERE ItemID = 2; INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) VALUES "
        "(1, 1, 5), (1, 2, -7.5), (3, 2, 4)"_s);
    search.SetItemID(3);
    search.SetItemID(2); // which is gone
    showActive(search);
    EXPECT_EQ(search.GetItemID(), 1);
    const auto &found = *child<ListGrid>(search, "DBGrid1");
    EXPECT_EQ(found.model()->rowCount(), 3) << "as they are by now";
    EXPECT_EQ(cellOf(found, 0, 3), u"-2.5"_s) << "of all locations";
    EXPECT_EQ(cellOf(found, 2, 3), QString()) << "never any";
    EXPECT_EQ(focusName(), u"editFindItemNo");
    EXPECT_EQ(child<QLineEdit>(search, "editFindItemNo")->text(), QString());
    EXPECT_EQ(child<LookupComboBox>(search, "cboItemType")->chosenId(), 0);
}
