#include "data/layouts.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Layouts {

using Engine::TableLayout;
using enum Engine::FieldType;
using enum Engine::IndexOption;

const TableLayout &iReceipt()
{
    static const TableLayout layout{
        u"IReceipt"_s,
        {
            {u"ReceiptID"_s, Integer},
            {u"ReceiptNo"_s, Text, 10},
            {u"GLYear"_s, SmallInt},
            {u"GLPeriod"_s, SmallInt},
            {u"ReceiptDate"_s, Date},
            {u"PurchaseOrderNo"_s, Text, 10},
            {u"VendorID"_s, Integer},
            {u"WarehouseID"_s, Integer},
            {u"Posted"_s, Boolean},
        },
        {
            {{}, u"ReceiptID"_s, Primary},
            {u"PERIODDATEDESC"_s, u"GLYear;GLPeriod;ReceiptDate;ReceiptNo"_s, Descending},
            {u"RECEIPTNO"_s, u"ReceiptNo"_s},
            {u"WAREHOUSEID"_s, u"WarehouseID"_s},
            {u"POSTED"_s, u"Posted"_s},
        },
    };
    return layout;
}

const TableLayout &iRecDet()
{
    static const TableLayout layout{
        u"IRecDet"_s,
        {
            {u"ReceiptID"_s, Integer},
            {u"Seq"_s, Integer},
            {u"ItemID"_s, Integer},
            {u"QtyReceived"_s, Float},
            {u"UnitCost"_s, Money},
        },
        {
            {{}, u"ReceiptID;Seq"_s, Primary},
            {u"ITEMID"_s, u"ItemID"_s},
        },
    };
    return layout;
}

const TableLayout &iUsage()
{
    static const TableLayout layout{
        u"IUsage"_s,
        {
            {u"UsageID"_s, Integer},
            {u"CustomerID"_s, Integer},
            {u"UsageNo"_s, Text, 10},
            {u"WarehouseID"_s, Integer},
            {u"Description"_s, Text, 60},
            {u"InventoryDate"_s, Date},
            {u"InvoiceAmount"_s, Money},
            {u"PaidAmount"_s, Money},
            {u"DiscTakenAmount"_s, Money},
            {u"WriteOffAmount"_s, Money},
            {u"Owing"_s, Money},
            {u"PurchaseOrderNo"_s, Text, 10},
            {u"GLPeriod"_s, SmallInt},
            {u"GLYear"_s, SmallInt},
            {u"Printed"_s, Boolean},
            {u"Posted"_s, Boolean},
            {u"ExchangeRate"_s, Float},
        },
        {
            {{}, u"UsageID"_s, Primary},
            {u"CUSTOMERIDUSAGENO"_s, u"CustomerID;UsageNo"_s},
            {u"USAGENO"_s, u"UsageNo"_s},
            {u"CUSTOMERID"_s, u"CustomerID"_s},
            {u"GLYEAR"_s, u"GLYear"_s},
            {u"GLPERIOD"_s, u"GLPeriod"_s},
            {u"POSTED"_s, u"Posted"_s},
            {u"PRINTED"_s, u"Printed"_s},
            {u"INVENTORYDATEUSAGENODESC"_s, u"InventoryDate;UsageNo"_s, Descending},
        },
    };
    return layout;
}

const TableLayout &iUsageDet()
{
    static const TableLayout layout{
        u"IUsageDet"_s,
        {
            {u"UsageID"_s, Integer},
            {u"Seq"_s, Integer},
            {u"Quantity"_s, Float},
            {u"ItemID"_s, Integer},
            {u"UnitCost"_s, Money},
            {u"TaxCodes"_s, Text, 3},
            {u"ItemOvDesc"_s, Text, 50},
        },
        {
            {{}, u"UsageID;Seq"_s, Primary},
            {u"ITEMID"_s, u"ItemID"_s},
        },
    };
    return layout;
}

const TableLayout &usage()
{
    static const TableLayout layout{
        u"Usage"_s,
        {
            {u"UsageID"_s, Integer},
            {u"Seq"_s, Integer},
            {u"Quantity"_s, Float},
            {u"ItemID"_s, Integer},
            {u"UnitPrice"_s, Money},
            {u"TaxCodes"_s, Text, 3},
            {u"ItemOvDesc"_s, Text, 40},
        },
        {
            {{}, u"UsageID;Seq"_s, Primary},
            {u"ITEMID"_s, u"ItemID"_s},
        },
    };
    return layout;
}

const TableLayout &iAdjust()
{
    static const TableLayout layout{
        u"IAdjust"_s,
        {
            {u"AdjustmentID"_s, Integer},
            {u"GLYear"_s, SmallInt},
            {u"GLPeriod"_s, SmallInt},
            {u"AdjDate"_s, Date},
            {u"AdjDescription"_s, Text, 50},
            {u"WarehouseID"_s, Integer},
            {u"Posted"_s, Boolean},
        },
        {
            {{}, u"AdjustmentID"_s, Primary},
            {u"PERIODDATEDESC"_s, u"GLYear;GLPeriod;AdjDate;AdjustmentID"_s, Descending},
            {u"WAREHOUSEID"_s, u"WarehouseID"_s},
            {u"POSTED"_s, u"Posted"_s},
        },
    };
    return layout;
}

const TableLayout &iAdjDet()
{
    static const TableLayout layout{
        u"IAdjDet"_s,
        {
            {u"AdjustmentID"_s, Integer},
            {u"Seq"_s, Integer},
            {u"ItemID"_s, Integer},
            {u"Quantity"_s, Float},
        },
        {
            {{}, u"AdjustmentID;Seq"_s, Primary},
            {u"ITEMID"_s, u"ItemID"_s},
        },
    };
    return layout;
}

const TableLayout &iHist()
{
    static const TableLayout layout{
        u"IHist"_s,
        {
            {u"IHistID"_s, AutoInc},
            {u"ItemID"_s, Integer},
            {u"WarehouseID"_s, Integer},
            {u"GLYear"_s, SmallInt},
            {u"GLPeriod"_s, SmallInt},
            {u"TransType"_s, SmallInt},
            {u"TransDate"_s, Date},
            {u"Quantity"_s, Float},
            {u"UnitCost"_s, Money},
            {u"TransDescription"_s, Text, 50},
            {u"ReceiptID"_s, Integer},
            {u"AdjustmentID"_s, Integer},
            {u"ARInvoiceID"_s, Integer},
            {u"UsageID"_s, Integer},
        },
        {
            {{}, u"IHistID"_s, Primary},
            {u"ITEMIDPERIODDATE"_s, u"ItemID;GLYear;GLPeriod;TransDate"_s},
            {u"ITEMIDWHSEIDPERIODDATE"_s, u"ItemID;WarehouseID;GLYear;GLPeriod;TransDate"_s},
            {u"PERIODDATEDESC"_s, u"GLYear;GLPeriod;TransDate;IHistID"_s, Descending},
            {u"GLPERIOD"_s, u"GLPeriod"_s},
            {u"GLYEAR"_s, u"GLYear"_s},
            {u"ITEMID"_s, u"ItemID"_s},
            {u"WAREHOUSEID"_s, u"WarehouseID"_s},
            {u"TRANSTYPE"_s, u"TransType"_s},
            {u"USAGEID"_s, u"UsageID"_s},
        },
    };
    return layout;
}

const TableLayout &iBalance()
{
    static const TableLayout layout{
        u"IBalance"_s,
        {
            {u"ItemID"_s, Integer},
            {u"WarehouseID"_s, Integer},
            {u"QtyOnHand"_s, Float},
        },
        {
            {{}, u"ItemID;WarehouseID"_s, Primary},
            {u"ITEMID"_s, u"ItemID"_s},
            {u"WAREHOUSEID"_s, u"WarehouseID"_s},
        },
    };
    return layout;
}

const TableLayout &iDocSaved()
{
    static const TableLayout layout{
        u"IDocSaved"_s,
        {
            {u"TransType"_s, SmallInt},
            {u"DocumentID"_s, Integer},
            {u"SavedBy"_s, Text, 50},
            {u"SavedAt"_s, DateTime},
        },
        {
            {{}, u"TransType;DocumentID"_s, Primary},
        },
    };
    return layout;
}

} // namespace Tallymere::Layouts
