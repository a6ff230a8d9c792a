#include "reports/columns.h"
#include "reports/reportlist.h"
#include "reports/reportquery.h"
#include "tests/reports/reportcsvof.h"
#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const ReportDescription &report(const char *name) { return *ReportList::find(QString::fromLatin1(name)); }

QByteArray csvOf(Kitchen &kitchen, const ReportDescription &report, const ReportSelection &selection)
{
    return ::csvOf({report.layout, report.rows(kitchen.database(), report, selection)});
}

using ListReports = KitchenTest;
ON_BOTH_STORES(ListReports);

TEST_P(ListReports, ShowWhatTheListDoesAndWhoseItemOrLocationIsGone)
{
    kitchen.setStock(1, 1, 1.5, 2.25);
    kitchen.setStock(99, 77, -4, 0);
    kitchen.execute(u"INSERT INTO IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, "
                    "UnitCost, TransDescription) VALUES (1, 1, 2026, 3, 3, '2026-03-14', 2, 1.5, 'Receipt: 1'), "
                    "(99, 77, 2025, 12, 0, '2025-12-31', -1, 0, NULL)"_s);
    kitchen.execute(
        u"INSERT INTO IAdjust (AdjustmentID, AdjDescription, GLYear, GLPeriod, AdjDate, WarehouseID, Posted) "
        "VALUES (1, 'Spoiled', 2026, 3, '2026-03-14', 77, true), (2, 'Lost', 2025, 3, '2025-03-14', 77, false); "
        "UPDATE ItemType SET ItemTypeID = 9 - ItemTypeID; "
        "UPDATE Item SET ItemTypeID = 9 - ItemTypeID"_s);
    kitchen.addReceipt(1, 2, 1, {}, u"PO7"_s);
    const std::tuple<const char *, QString, QByteArray> cases[] = {
        // the filter, and behind a bar the order
        {"Items", u"(ItemTypeID = 8) AND (Suspended <> true)"_s,
         "Band,ItemNo,ItemDescription,UnitPrice,TaxCodes,WgtAvgCost,StandardCost\r\n"
         "detail,A10,Apples,,,2.25,\r\ndetail,A11,Bread,,,,\r\n"},
        {"Vendors", u"(CurrencyID = 1) AND (Suspended <> true)"_s,
         "Band,VendorNo,VendorName,Phone,Notes\r\ndetail,V1,First,,\r\n"},
        {"Inventory Receipts",
         {},
         "Band,Periodppyyyy,ReceiptNo,ReceiptDate,PurchaseOrderNo,VendorName,WarehouseName,Posted\r\n"
         "detail,3/2026,1001,2026-03-14,PO7,Second,Office,false\r\n"},
        {"Inventory Adjustments",
         {},
         "Band,Periodppyyyy,AdjDescription,AdjDate,WarehouseName,Posted\r\n"
         "detail,3/2026,Spoiled,2026-03-14,,true\r\ndetail,3/2025,Lost,2025-03-14,,false\r\n"},
        {"Inventory Adjustments", u"|POSTED"_s,
         "Band,Periodppyyyy,AdjDescription,AdjDate,WarehouseName,Posted\r\n"
         "detail,3/2025,Lost,2025-03-14,,false\r\ndetail,3/2026,Spoiled,2026-03-14,,true\r\n"},
        {"Inventory History",
         {},
         "Band,ItemNo,ItemDescription,TransDate,Periodppyyyy,TransTypeName,TransDescription,Quantity,UnitCost,"
         "WarehouseName\r\n"
         "detail,A10,Apples,2026-03-14,3/2026,PO Receipt,Receipt: 1,2,1.5,Office\r\n"
         "detail,,,2025-12-31,12/2025,,,-1,0,\r\n"},
        {"Inventory Totals", u"(WarehouseID = 77)"_s,
         "Band,ItemNo,ItemDescription,WarehouseName,QtyOnHand\r\ndetail,,,,-4\r\n"},
        {"Inventory Totals", u"|WarehouseID"_s,
         "Band,ItemNo,ItemDescription,WarehouseName,QtyOnHand\r\ndetail,A10,Apples,Office,1.5\r\ndetail,,,,-4\r\n"},
        {"Items", u"(Suspended <> true)|ItemDescription1"_s,
         "Band,ItemNo,ItemDescription,UnitPrice,TaxCodes,WgtAvgCost,StandardCost\r\n"
         "detail,A10,Apples,,,2.25,\r\ndetail,B1,apricots,,,,\r\ndetail,A11,Bread,,,,\r\n"},
    };
    for (const auto &[name, choice, csv] : cases) {
        const ReportSelection selection{.filter = choice.section(u'|', 0, 0), .order = choice.section(u'|', 1)};
        const ReportDescription &list = report(name);
        EXPECT_EQ(csvOf(kitchen, list, selection), csv) << name;
        EXPECT_EQ(list.layout.landscape, list.listText == "Inventory History"_L1);
    }
}

TEST_P(ListReports, AQueryIsNarrowedByWhatIsChosenAndByNothingElse)
{
    for (int id = 1; id <= 4; ++id)
        kitchen.addReceipt(id, 1, 1 + id % 2, {});
    kitchen.execute(u"UPDATE IReceipt SET GLYear = 2025, GLPeriod = 12 WHERE ReceiptID = 1; "
                    "UPDATE IReceipt SET GLYear = 2026, GLPeriod = 2 WHERE ReceiptID = 2; "
                    "UPDATE IReceipt SET GLYear = 2026, GLPeriod = 11 WHERE ReceiptID = 3; "
                    "UPDATE IReceipt SET GLYear = 2027, GLPeriod = 1 WHERE ReceiptID = 4"_s);
    ReportQuery query{.select = u"R.ReceiptID, W.WarehouseName"_s,
                      .from = u"IReceipt R LEFT OUTER JOIN Warehse W ON R.WarehouseID = W.WarehouseID"_s,
                      .conditions = {u"R.ReceiptID <> 2 OR R.ReceiptID IS NULL"_s, u"R.WarehouseID = :Location"_s,
                                     u"(R.GLYear, R.GLPeriod) >= (:Year, :Period)"_s}};
    ReportDescription receipts;
    receipts.layout.columns = {Columns::text(u"ReceiptID"_s, u"Receipt"_s, 1)};
    const std::pair<ReportSelection, QByteArray> cases[] = {
        {{}, "134"},
        {{.warehouseId = 2}, "13"},
        {{.period = 2, .year = 2026}, "34"},
        {{.warehouseId = 2, .itemTypeId = 9, .period = 1, .year = 2026}, "3"},
        {{.warehouseId = 7}, ""}};
    for (const QString &keys : {QString(), u"ReceiptID"_s}) {
        query.keys = keys;
        query.order = {keys.isEmpty() ? u"R.ReceiptID"_s : keys};
        receipts.rows = queryRows(query);
        for (const auto &[selection, shown] : cases)
            EXPECT_EQ(csvOf(kitchen, receipts, selection)
                          .replace("Band,ReceiptID", "")
                          .replace("detail,", "")
                          .replace("\r\n", ""),
                      shown);
    }
    query.conditions.append(u"R.VendorID = :Vendor"_s);
    receipts.rows = queryRows(query);
    EXPECT_THROW(csvOf(kitchen, receipts, {}), Engine::EngineError) << "of a choice that there is not";
}

} // namespace
