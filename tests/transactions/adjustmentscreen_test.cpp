#include "tests/support/screentest.h"
#include "transactions/documentkinds.h"
#include "transactions/screens/documentlistscreen.h"
#include "transactions/screens/invadjustment.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

using AdjustmentScreenTest = ScreenTest;

TEST_F(AdjustmentScreenTest, listBeginsAtItsFirstRowEachTimeItIsShown)
{
    kitchen.execute(
        u"INSERT INTO IAdjust (AdjustmentID, GLYear, GLPeriod) VALUES (1, 2026, 3), (2, 2026, 4), (3, 2026, 5)"_s);
    DocumentListOf<DocumentKinds::adjustment> list(*context, mainWindow.get());
    showActive(list);
    ASSERT_TRUE(list.moveToKey(1));
    list.showAgain();
    EXPECT_EQ(list.dataSet().integer(u"AdjustmentID"), 3);
}

TEST_F(AdjustmentScreenTest, stepsTheDateThatIsShownAndLeavesTheLinesForTheLocation)
{
    auto *screen = openRecord<TfrmInvAdjustment>();
    auto *date = child<QLineEdit>(*screen, "editAdjDate");
    const std::pair<const char *, QDate> cases[] = {
        {"022826+", QDate(2026, 3, 1)},
        {"+", context->data.today().addDays(1)},
        {"030126-", QDate(2026, 2, 28)},
    };
    for (const auto &[keys, shown] : cases) {
        typeOver(*screen, "editAdjDate", "");
        type(keys);
        press(Qt::Key_Tab);
        EXPECT_EQ(date->text(), QLocale::c().toString(shown, u"dd MMM yy")) << keys;
    }
    typeOver(*screen, "editAdjDate", "+"); // which the mask has no place for
    press(Qt::Key_Tab);
    EXPECT_EQ(date->text(), u"01 Mar 26"_s);
    child<QToolButton>(*screen, "btnWarehouse")->setEnabled(true); // there is no list of locations in these tests
    type("<PgDown><Backtab>");
    EXPECT_EQ(focusName(), u"cboWarehouse"_s);
    EXPECT_EQ(prompts.said, QStringList());
}
