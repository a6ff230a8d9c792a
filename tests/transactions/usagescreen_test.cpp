#include "controls/grids/linegrid.h"
#include "controls/screens/datedialog.h"
#include "tests/support/screentest.h"
#include "transactions/screens/documentfilterscreen.h"
#include "transactions/screens/invusage.h"
#include "transactions/screens/invusages.h"

#include <QCalendarWidget>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct UsageScreenTest : ScreenTest
{
    UsageScreenTest()
    {
        kitchen.execute(
            u"UPDATE ItemType SET Inventory = true, CostingMethod = 1; UPDATE Item SET WgtAvgCost = 2"_s);
    }
    void open()
    {
        screen = openRecord<TfrmUsage>();
        grid = child<LineGrid>(*screen, "DBGrid1");
    }
    QString cursor() { return cursorOf(*grid); }
    // Each of the filter dialog that the list opens, and the filter and number of rows that come of it.
    QString filtered(const std::function<void(DocumentFilterScreen &)> &choose)
    {
        const auto open = [this] { list->command(u"mnuFilter"_s)->trigger(); };
        EXPECT_TRUE(whileOpen<DocumentFilterScreen>(open, [&](DocumentFilterScreen &dialog) {
            choose(dialog);
            press(Qt::Key_Return);
        }));
        return u"%1: %2"_s.arg(list->dataSet().filter()).arg(list->dataSet().recordCount());
    }

    QPointer<TfrmUsage> screen;
    QPointer<TfrmUsages> list;
    LineGrid *grid = nullptr;
};

} // namespace

TEST_F(UsageScreenTest, leadsBackToTheItemWithoutTheSearch)
{
    open();
    EXPECT_TRUE(screen->testAttribute(Qt::WA_KeyboardFocusChange)) << "boxes show the cursor that Enter brings";
    type("<PgDown>3<PgDown>"); // the line has no item yet
    EXPECT_EQ(prompts.told(), u"error: Field 'Item no.' must have a value...\nMake changes or press Esc to undo");
    QCoreApplication::processEvents();
    EXPECT_EQ(cursor(), u"0,1"_s);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    const std::function<void()> ways[] = {[] { press(Qt::Key_Return); },
                                          [&] { focusOn(*screen, "editDescription"); }};
    for (const auto &leave : ways) {
        type("<Tab><Tab>Yeast"); // which is suspended
        leave();
        QCoreApplication::processEvents();
        EXPECT_EQ(prompts.told(), u"error: Item 'X9: Yeast' has been suspended");
        EXPECT_EQ(cursor(), u"0,1"_s);
        EXPECT_FALSE(grid->hasEntry());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        EXPECT_EQ(focusName(), u"DBGrid1"_s);
    }
    screen->btnCancelClick();
}

TEST_F(UsageScreenTest, listFiltersByACurrencyWithoutNarrowingAndDeletesByDate)
{
    kitchen.execute(u"INSERT INTO IUsage (UsageID, UsageNo, WarehouseID, InventoryDate, Posted) VALUES "
                    "(1, '11', 1, '2026-03-14', true), (2, '12', 2, '2026-03-15', false), "
                    "(3, '13', 2, '2026-03-15', NULL)"_s);
    list = openScreen<TfrmUsages>();
    EXPECT_EQ(filtered([](DocumentFilterScreen &dialog) { dialog.setKey(u"cboCurrency"_s, 2); }), u": 3"_s);
    kitchen.execute(u"INSERT INTO IUsage (UsageID, UsageNo, WarehouseID, Posted) VALUES (4, '14', 1, true)"_s);
    EXPECT_EQ(filtered([](DocumentFilterScreen &) {}), u": 4"_s) << "read anew";
    EXPECT_EQ(filtered([](DocumentFilterScreen &dialog) {
                  dialog.setKey(u"cboWarehouse"_s, 2);
                  click(dialog, "optPostedNo");
              }),
              u"(WarehouseID = 2) AND (Posted <> true): 2"_s);
    EXPECT_EQ(filtered([](DocumentFilterScreen &dialog) { click(dialog, "optPostedYes"); }),
              u"(WarehouseID = 2) AND (Posted = true): 0"_s);

    list->resetFilter();
    ASSERT_TRUE(list->moveToKey(2));
    list->btnEditClick();
    ASSERT_TRUE(list->moveToKey(1));
    findScreen<TfrmUsage>(u"frmUsage"_s)->btnOKClick();
    EXPECT_EQ(list->dataSet().integer(u"UsageID"), 2) << "the list follows, though nothing was saved";
    settle();

    list->btnEditClick();
    const QPointer<TfrmUsage> shown = findScreen<TfrmUsage>(u"frmUsage"_s);
    ASSERT_TRUE(shown);
    kitchen.execute(u"ALTER TABLE History RENAME TO Gone"_s);
    const auto removeByDate = [this] { list->command(u"mnuDeleteDate"_s)->trigger(); };
    EXPECT_TRUE(whileOpen<DateDialog>(removeByDate, [](DateDialog &dialog) { // leaves no note
        child<QCalendarWidget>(dialog, "calendar")->setSelectedDate(QDate(2026, 3, 15));
        click(dialog, "btnOK");
    }));
    EXPECT_TRUE(comesTrue([&] { return !shown; })) << "its document is gone";
    EXPECT_TRUE(prompts.last().startsWith("error: "_L1));
    EXPECT_EQ(list->dataSet().recordCount(), 3); // one without a mark is neither posted nor not
}
