#include "controls/grids/rowsgrid.h"
#include "insight/screens/costtrailscreen.h"
#include "insight/screens/curveview.h"
#include "insight/screens/itemcard.h"
#include "tests/support/documents.h"
#include "tests/support/screentest.h"
#include "transactions/screens/documentscreens.h"
#include "transactions/screens/invreceipt.h"
#include "transactions/screens/invtotals.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct ItemCardTest : ScreenTest
{
    ItemCardTest()
    {
        context->showItem = [this](int item) { showItemCard(*context, item, mainWindow.get()); };
        kitchen.addReceipt(1, 1, 1, {{2, 5, 3.0}, {1, 4, 2.0}});
        kitchen.addReceipt(2, 1, 2, {{1, 8, 4.0}});
        DocumentPosting(kitchen.database(), DocumentKinds::receipt()).run(prompts, progress);
        kitchen.addReceipt(3, 1, 2, {{1, 3, 4.0}});
    }

    template <typename Window> static Window *window(const char *name)
    {
        auto *found = findScreen<Window>(QString::fromLatin1(name));
        EXPECT_TRUE(found && found->isVisible()) << name;
        return found;
    }

    CountedProgress progress;
};

} // namespace

TEST_F(ItemCardTest, OpensFromAListAndLeadsFromItsCurvesToTheDocuments)
{
    auto *totals = new TfrmInvTotals(*context, mainWindow.get());
    showActive(*totals);
    QTest::keyClick(child<QTableView>(*totals, "DBGrid1"), Qt::Key_I, Qt::ControlModifier);
    auto *card = window<TfrmItemCard>("frmItemCard");
    ASSERT_NE(card, nullptr);
    EXPECT_EQ(card->item(), 1);

    auto *curve = child<CurveView>(*card, "chartQuantity");
    auto *told = child<QLabel>(*card, "lblTold");
    showActive(*card);
    curve->setFocus();
    EXPECT_TRUE(told->text().contains(u"1002"_s) && told->text().contains(u"then 12 on hand"_s))
        << qPrintable(told->text());
    QTest::keyClick(curve, Qt::Key_Left);
    QTest::keyClick(curve, Qt::Key_Left); // no further
    EXPECT_TRUE(told->text().contains(u"1001"_s) && told->text().contains(u"then 4 on hand"_s))
        << qPrintable(told->text());
    QTest::keyClick(curve, Qt::Key_Return);
    auto *receipt = window<TfrmInvReceipt>("frmInvReceipt");
    ASSERT_NE(receipt, nullptr);
    EXPECT_EQ(receipt->storedKey(), 1);
    receipt->close();
    settle();

    context->showItem(1); // comes to the front
    child<QPushButton>(*card, "btnWhy")->click();
    auto *trail = window<TfrmCostTrail>("frmCostTrail");
    ASSERT_NE(trail, nullptr);
    auto *grid = child<RowsGrid>(*trail, "DBGrid1");
    ASSERT_EQ(grid->model()->rowCount(), 2);
    EXPECT_EQ(rowOf(*grid, 1).last(), u"3.33"_s); // (4 x 2 + 8 x 4) / 12, as it is shown
    QTest::keyClick(grid, Qt::Key_Down);
    QTest::keyClick(grid, Qt::Key_Return);
    receipt = window<TfrmInvReceipt>("frmInvReceipt");
    EXPECT_EQ(receipt->storedKey(), 2);
}
