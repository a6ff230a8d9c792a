#include "insight/screens/itemcard.h"
#include "tests/support/documents.h"
#include "tests/support/screentest.h"
#include "transactions/screens/invreceipt.h"

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
    }

    CountedProgress progress;
};

} // namespace

TEST_F(ItemCardTest, LeadsFromItsCurvesToTheDocuments)
{
    context->showItem(1);
    auto *card = opened<TfrmItemCard>(u"frmItemCard"_s);

    auto *told = child<QLabel>(*card, "lblTold");
    focusOn(*card, "chartQuantity");
    EXPECT_TRUE(has(told->text(), u"1002"_s) && has(told->text(), u"then 12 on hand"_s));
    type("<Left><Left>"); // no further
    EXPECT_TRUE(has(told->text(), u"1001"_s) && has(told->text(), u"then 4 on hand"_s));
    press(Qt::Key_Return);
    const auto expectReceipt = [](int key) {
        auto *receipt = opened<TfrmInvReceipt>(u"frmInvReceipt"_s);
        EXPECT_EQ(receipt->storedKey(), key);
        receipt->close();
        settle();
    };
    expectReceipt(1);
    showActive(*card);
    focusOn(*card, "chartCost");
    press(Qt::Key_Return);
    expectReceipt(2);

    context->showItem(1);
    EXPECT_TRUE(comesTrue([card] { return card->isActiveWindow(); })) << "comes to the front";
}
