#include "tests/support/screentest.h"
#include "transactions/screens/invadjustment.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

class AdjustmentScreenTest : public ScreenTest
{
};

TEST_F(AdjustmentScreenTest, stepsTheDateThatIsShownAndLeavesTheLinesForTheLocation)
{
    auto *screen = new TfrmInvAdjustment(*context, mainWindow.get());
    screen->newRecord();
    showActive(*screen);
    auto *date = child<QLineEdit>(*screen, "editAdjDate");
    struct Case
    {
        const char *typed;
        Qt::Key step;
        QDate shown;
    };
    const Case cases[] = {
        {"022826", Qt::Key_Plus, QDate(2026, 3, 1)},
        {"", Qt::Key_Plus, context->data.today().addDays(1)},
        {"030126", Qt::Key_Minus, QDate(2026, 2, 28)},
    };
    for (const Case &given : cases) {
        date->setFocus();
        date->selectAll();
        press(Qt::Key_Delete);
        type(given.typed);
        press(given.step);
        press(Qt::Key_Tab);
        EXPECT_EQ(date->text(), QLocale::c().toString(given.shown, u"dd MMM yy")) << given.typed;
    }
    child<QToolButton>(*screen, "btnWarehouse")->setEnabled(true); // there is no list of locations in these tests
    type("<PgDown><Backtab>");
    EXPECT_EQ(focusName(), u"cboWarehouse"_s);
    EXPECT_EQ(prompts.said, QStringList());
}
