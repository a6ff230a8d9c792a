#include "controls/listscreen.h"
#include "master/vendorsform.h"
#include "tests/transactions/screentest.h"
#include "transactions/invreceiptform.h"

#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class LocationList final : public ListScreen
{
public:
    LocationList(ScreenContext &screens, QWidget *parent)
        : ListScreen(screens, parent)
        , m_table(screens.data.databaseTallymere(), u"Warehse"_s)
    {
        m_table.open();
        build({.name = u"frmWarehousesInv"_s,
               .caption = u"Locations"_s,
               .columns = {{u"WarehouseName"_s, u"Location"_s}}},
              m_table, {});
    }

private:
    Engine::Table m_table;
};

using ReceiptLinksTest = ScreenTest;

} // namespace

TEST_F(ReceiptLinksTest, locationButtonOpensTheListOnTheReceiptsLocation)
{
    auto *list = new LocationList(*context, mainWindow.get());
    bool allowed = false;
    context->hasScreen = [](const QString &name) { return name == "frmWarehousesInv"_L1; };
    context->openScreen = [list](const QString &) { return list; };
    context->securityCheck = [&](const QString &key, const QString &) { return allowed && key == "Warehouses"_L1; };
    kitchen.addReceipt(1, 1, 2, {{1, 5, 3.0}});
    TfrmInvReceipt screen(*context, mainWindow.get());
    ASSERT_TRUE(screen.openDocument(1));
    list->applyFilter(u"(WarehouseID = 1)"_s);
    const auto click = [&] { child<QToolButton>(screen, "btnWarehouse")->click(); };
    click();
    EXPECT_TRUE(list->dataSet().isFiltered()) << "the rights do not allow it";
    allowed = true;
    click();
    EXPECT_FALSE(list->dataSet().isFiltered());
    EXPECT_EQ(list->dataSet().integer(u"WarehouseID"), 2);
    screen.newDocument();
    click();
    EXPECT_EQ(list->dataSet().integer(u"WarehouseID"), 1) << "no location yet: the first";
    EXPECT_FALSE(child<QToolButton>(screen, "btnVendor")->isEnabled()) << "a list that is not there";
}

TEST_F(ReceiptLinksTest, vendorButtonOpensTheVendorsOnTheReceiptsVendor)
{
    auto *vendors = new TfrmVendors(*context, mainWindow.get());
    vendors->applyFilter(u"(Suspended = true)"_s);
    context->hasScreen = [](const QString &name) { return name == "frmVendors"_L1; };
    context->openScreen = [vendors](const QString &) {
        vendors->show();
        return vendors;
    };
    kitchen.addReceipt(1, 3, 2, {{1, 5, 3.0}});
    TfrmInvReceipt screen(*context, mainWindow.get());
    ASSERT_TRUE(screen.openDocument(1));
    child<QToolButton>(screen, "btnVendor")->click();
    EXPECT_EQ(vendors->windowTitle(), u"Vendors"_s) << "not filtered any more";
    EXPECT_EQ(vendors->dataSet().text(u"VendorNo"), u"V3"_s);
    screen.newDocument();
    child<QToolButton>(screen, "btnVendor")->click();
    EXPECT_EQ(vendors->dataSet().text(u"VendorName"), u"Fifth"_s) << "no vendor yet: the first by name";
}
