#include "tests/frame/hoststub.h"
#include "tests/support/accessibledriver.h"
#include "tests/support/teststore.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Accessible::Window;

namespace {

// The product as its host opens it, over a company with a vendor and two items.
struct AccessibleTest : testing::Test
{
    AccessibleTest()
    {
        QAccessible::setActive(true);
        over.fill();
    }
    ~AccessibleTest() override { QAccessible::setActive(false); }

    void whileOpen(const std::function<void(const Window &main)> &step)
    {
        HostStub host;
        TFormTallymereSystem system({over.company.settings, over.company.prompts, screens});
        system.init(&host);
        QTimer::singleShot(0, &system, [&] {
            step(Window(u"Corvane Tallymere"_s));
            system.close();
        });
        system.formTallymereSystemShowModal();
    }
    QStringList rows(const QString &sql) { return rowsOf(over.data.databaseTallymere(), sql); }

    TestContext over;
    const ScreenRegistry screens = productScreens();
};

} // namespace

TEST_F(AccessibleTest, ADaysReceivingNeedsNoEyes)
{
    whileOpen([this](const Window &main) {
        main.press(u"Receive Inventory"_s);
        const Window receipts(u"Inventory Receipts"_s);
        receipts.whenOpen().press(u"New"_s);
        const Window receipt(u"New Inventory Receipt"_s);
        receipt.whenOpen().choose(u"Vendor name"_s, u"North Mill"_s);
        receipt.choose(u"Warehouse"_s, u"Cellar"_s);
        receipt.fill(u"Purchase Order no."_s, u"PO 77"_s);
        const QStringList lines[] = {{u"12"_s, u"A10"_s, u"1.25"_s}, {u"3"_s, u"B1"_s, u"2"_s}};
        for (int row = 0; row < 2; ++row) {
            receipt.press(u"New Line"_s);
            ASSERT_TRUE(comesTrue([&] { return receipt.rowsOf(u"Lines"_s) == row + 1; }));
            receipt.enter(u"Lines"_s, row, u"Quantity"_s, lines[row][0]);
            receipt.enter(u"Lines"_s, row, u"Item no."_s, lines[row][1]);
            receipt.enter(u"Lines"_s, row, u"Unit Cost"_s, lines[row][2]);
        }
        EXPECT_EQ(receipt.textAt(u"Lines"_s, 0, u"Description"_s), u"Apples"_s);
        EXPECT_EQ(receipt.textAt(u"Lines"_s, 0, u"After"_s), u"12"_s);
        receipt.enter(u"Lines"_s, 1, u"Item no."_s, u"none such"_s); // is refused, and said
        EXPECT_FALSE(over.company.prompts.take().isEmpty());
        receipt.enter(u"Lines"_s, 1, u"Item no."_s, u"B1"_s);
        receipt.press(u"OK"_s);
        receipt.expectGone();
        EXPECT_EQ(receipts.textAt(u"Inventory Receipts"_s, 0, u"PO"_s), u"PO 77"_s);

        main.press(u"Post Receipts"_s, u"Post Inventory Receipts"_s,
                   [](const Window &posting) { posting.press(u"OK"_s); });
    });
    EXPECT_EQ(over.company.prompts.take(), QStringList());
    EXPECT_EQ(rows(u"SELECT VendorID, WarehouseID, PurchaseOrderNo, Posted FROM IReceipt"_s),
              QStringList{u"2|7|PO 77|true"_s});
    EXPECT_EQ(rows(u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance ORDER BY ItemID"_s),
              (QStringList{u"1|7|12"_s, u"2|7|3"_s}));
}
