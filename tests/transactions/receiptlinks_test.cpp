#include "controls/listscreen.h"
#include "master/screens/vendors.h"
#include "master/screens/warehousesinv.h"
#include "tests/support/screentest.h"
#include "transactions/screens/invreceipt.h"

#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace Tallymere;

using ReceiptLinksTest = ScreenTest;

// Unfiltered, on the row that the receipt names, or on the first; when the rights allow it.
TEST_F(ReceiptLinksTest, buttonsOpenTheirListsOnTheReceiptsRecord)
{
    const QHash<QString, ListScreen *> lists = {
        {u"frmVendors"_s, new TfrmVendors(*context, mainWindow.get())},
        {u"frmWarehousesInv"_s, new TfrmWarehousesInv(*context, mainWindow.get())},
    };
    QString allowed;
    context->hasScreen = [&](const QString &name) { return lists.contains(name); };
    context->openScreen = [&](const QString &name) {
        lists[name]->show();
        return lists[name];
    };
    context->securityCheck = [&](const QString &key, const QString &) { return allowed == key; };
    kitchen.addReceipt(1, 3, 2, {{1, 5, 3.0}});
    TfrmInvReceipt screen(*context, mainWindow.get());

    const std::tuple<const char *, QString, QString, QString, int, int> cases[] = {
        {"btnVendor", u"frmVendors"_s, u"Vendors"_s, u"VendorID"_s, 3, 5},
        {"btnWarehouse", u"frmWarehousesInv"_s, u"Warehouses"_s, u"WarehouseID"_s, 2, 2},
    };
    for (const auto &[button, name, right, key, named, first] : cases) {
        SCOPED_TRACE(button);
        ASSERT_TRUE(screen.openRecord(1));
        Engine::DataSet &rows = lists[name]->dataSet();
        lists[name]->applyFilter(u"(%1 = 1)"_s.arg(key));
        allowed.clear();
        child<QToolButton>(screen, button)->click();
        EXPECT_TRUE(rows.isFiltered()) << "the rights do not allow it";
        allowed = right;
        child<QToolButton>(screen, button)->click();
        EXPECT_FALSE(rows.isFiltered());
        EXPECT_EQ(rows.integer(key), named);
        screen.newRecord();
        child<QToolButton>(screen, button)->click();
        EXPECT_EQ(rows.integer(key), first) << "none yet: the first by name";
    }
}

TEST_F(ReceiptLinksTest, buttonOfAListThatIsNotThereIsDisabled)
{
    TfrmInvReceipt screen(*context, mainWindow.get());
    EXPECT_FALSE(child<QToolButton>(screen, "btnVendor")->isEnabled());
}
