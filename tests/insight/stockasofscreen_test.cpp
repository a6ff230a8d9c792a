#include "insight/screens/stockasof.h"
#include "insight/screens/stocktimedialog.h"
#include "tests/support/screentest.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct StockAsOfTest : ScreenTest
{
    StockAsOfTest()
    {
        kitchen.setStock(1, 1, 10, 2);
        kitchen.execute(
            u"INSERT INTO IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity) VALUES "
            "(1, 1, 2026, 2, 3, '2026-02-20', 12), (1, 1, 2026, 3, 5, '2026-02-28', 4), "
            "(1, 1, 2026, 3, 3, '2026-03-02', 2)"_s);
        screen = openScreen<TfrmStockAsOf>();
        grid = child<QTableView>(*screen, "DBGrid1");
    }

    // What is shown after a choice in the dialog.
    QString after(const std::function<void(StockTimeDialog &)> &choose)
    {
        EXPECT_TRUE(whileOpen<StockTimeDialog>([this] { screen->mnuTimeClick(); }, choose));
        return screen->windowTitle() + u": "_s + rowOf(*grid, 0).join(u'|');
    }

    QPointer<TfrmStockAsOf> screen;
    QTableView *grid = nullptr;
};

TEST_F(StockAsOfTest, ADayOrAPeriodIsChosen)
{
    EXPECT_EQ(rowOf(*grid, 0).join(u'|'), u"A10|Apples|Office|12|24.00|10"_s);
    EXPECT_EQ(after([](StockTimeDialog &dialog) {
                  child<QRadioButton>(dialog, "optDay")->click();
                  typeOver(dialog, "editDay", "3/1/26<Return>");
              }),
              u"Stock as of 01 Mar 26: A10|Apples|Office|8|16.00|10"_s);
    EXPECT_EQ(after([this](StockTimeDialog &dialog) {
                  child<QRadioButton>(dialog, "optPeriod")->click();
                  typeOver(dialog, "editGLPeriod", "13<Return>");
                  EXPECT_TRUE(dialog.isVisible());
                  EXPECT_FALSE(prompts.told().isEmpty());
                  typeOver(dialog, "editGLPeriod", "3<Return>");
              }),
              u"Stock as of the end of period 3/2026: A10|Apples|Office|10|20.00|10"_s)
        << "of the year that is offered";
}

} // namespace
