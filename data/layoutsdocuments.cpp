#include "data/layouts.h"

#include "data/fields.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Layouts {

using Engine::TableLayout;
using enum Engine::IndexOption;

const TableLayout &iReceipt()
{
    static const TableLayout layout{
        u"IReceipt"_s,
        {
            Fields::ReceiptID,
            Fields::ReceiptNo.sized(10),
            Fields::GLYear,
            Fields::GLPeriod,
            Fields::ReceiptDate,
            Fields::PurchaseOrderNo.sized(10),
            Fields::VendorID,
            Fields::WarehouseID,
            Fields::Posted,
        },
        {
            {{}, Fields::ReceiptID, Primary},
            {u"PERIODDATEDESC"_s, u"GLYear;GLPeriod;ReceiptDate;ReceiptNo"_s, Descending},
            {u"RECEIPTNO"_s, Fields::ReceiptNo},
            {u"WAREHOUSEID"_s, Fields::WarehouseID},
            {u"POSTED"_s, Fields::Posted},
        },
    };
    return layout;
}

const TableLayout &iRecDet()
{
    static const TableLayout layout{
        u"IRecDet"_s,
        {
            Fields::ReceiptID,
            Fields::Seq,
            Fields::ItemID,
            Fields::QtyReceived,
            Fields::UnitCost,
        },
        {
            {{}, u"ReceiptID;Seq"_s, Primary},
            {u"ITEMID"_s, Fields::ItemID},
        },
    };
    return layout;
}

const TableLayout &iUsage()
{
    static const TableLayout layout{
        u"IUsage"_s,
        {
            Fields::UsageID,
            Fields::CustomerID,
            Fields::UsageNo.sized(10),
            Fields::WarehouseID,
            Fields::Description.sized(60),
            Fields::InventoryDate,
            Fields::InvoiceAmount,
            Fields::PaidAmount,
            Fields::DiscTakenAmount,
            Fields::WriteOffAmount,
            Fields::Owing,
            Fields::PurchaseOrderNo.sized(10),
            Fields::GLPeriod,
            Fields::GLYear,
            Fields::Printed,
            Fields::Posted,
            Fields::ExchangeRate,
        },
        {
            {{}, Fields::UsageID, Primary},
            {u"CUSTOMERIDUSAGENO"_s, u"CustomerID;UsageNo"_s},
            {u"USAGENO"_s, Fields::UsageNo},
            {u"CUSTOMERID"_s, Fields::CustomerID},
            {u"GLYEAR"_s, Fields::GLYear},
            {u"GLPERIOD"_s, Fields::GLPeriod},
            {u"POSTED"_s, Fields::Posted},
            {u"PRINTED"_s, Fields::Printed},
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
            Fields::UsageID,
            Fields::Seq,
            Fields::Quantity,
            Fields::ItemID,
            Fields::UnitCost,
            Fields::TaxCodes.sized(3),
            Fields::ItemOvDesc.sized(50),
        },
        {
            {{}, u"UsageID;Seq"_s, Primary},
            {u"ITEMID"_s, Fields::ItemID},
        },
    };
    return layout;
}

const TableLayout &usage()
{
    static const TableLayout layout{
        u"Usage"_s,
        {
            Fields::UsageID,
            Fields::Seq,
            Fields::Quantity,
            Fields::ItemID,
            Fields::UnitPrice,
            Fields::TaxCodes.sized(3),
            Fields::ItemOvDesc.sized(40),
        },
        {
            {{}, u"UsageID;Seq"_s, Primary},
            {u"ITEMID"_s, Fields::ItemID},
        },
    };
    return layout;
}

const TableLayout &iAdjust()
{
    static const TableLayout layout{
        u"IAdjust"_s,
        {
            Fields::AdjustmentID,
            Fields::GLYear,
            Fields::GLPeriod,
            Fields::AdjDate,
            Fields::AdjDescription.sized(50),
            Fields::WarehouseID,
            Fields::Posted,
        },
        {
            {{}, Fields::AdjustmentID, Primary},
            {u"PERIODDATEDESC"_s, u"GLYear;GLPeriod;AdjDate;AdjustmentID"_s, Descending},
            {u"WAREHOUSEID"_s, Fields::WarehouseID},
            {u"POSTED"_s, Fields::Posted},
        },
    };
    return layout;
}

const TableLayout &iAdjDet()
{
    static const TableLayout layout{
        u"IAdjDet"_s,
        {
            Fields::AdjustmentID,
            Fields::Seq,
            Fields::ItemID,
            Fields::Quantity,
        },
        {
            {{}, u"AdjustmentID;Seq"_s, Primary},
            {u"ITEMID"_s, Fields::ItemID},
        },
    };
    return layout;
}

const TableLayout &iHist()
{
    static const TableLayout layout{
        u"IHist"_s,
        {
            Fields::IHistID,
            Fields::ItemID,
            Fields::WarehouseID,
            Fields::GLYear,
            Fields::GLPeriod,
            Fields::TransType,
            Fields::TransDate,
            Fields::Quantity,
            Fields::UnitCost,
            Fields::TransDescription.sized(50),
            Fields::ReceiptID,
            Fields::AdjustmentID,
            Fields::ARInvoiceID,
            Fields::UsageID,
        },
        {
            {{}, Fields::IHistID, Primary},
            {u"ITEMIDPERIODDATE"_s, u"ItemID;GLYear;GLPeriod;TransDate"_s},
            {u"ITEMIDWHSEIDPERIODDATE"_s, u"ItemID;WarehouseID;GLYear;GLPeriod;TransDate"_s},
            {u"PERIODDATEDESC"_s, u"GLYear;GLPeriod;TransDate;IHistID"_s, Descending},
            {u"GLPERIOD"_s, Fields::GLPeriod},
            {u"GLYEAR"_s, Fields::GLYear},
            {u"ITEMID"_s, Fields::ItemID},
            {u"WAREHOUSEID"_s, Fields::WarehouseID},
            {u"TRANSTYPE"_s, Fields::TransType},
            {u"USAGEID"_s, Fields::UsageID},
            // A history of any length is shown in the order of these, where each row has its own place.
            {u"TRANSDATEROW"_s, u"TransDate;IHistID"_s},
            {u"TRANSTYPEROW"_s, u"TransType;IHistID"_s},
            {u"WAREHOUSEIDROW"_s, u"WarehouseID;IHistID"_s},
            {u"QUANTITYROW"_s, u"Quantity;IHistID"_s},
            {u"UNITCOSTROW"_s, u"UnitCost;IHistID"_s},
            {u"TRANSDESCRIPTIONROW"_s, u"TransDescription;IHistID"_s, CaseInsensitive},
        },
    };
    return layout;
}

const TableLayout &iBalance()
{
    static const TableLayout layout{
        u"IBalance"_s,
        {
            Fields::ItemID,
            Fields::WarehouseID,
            Fields::QtyOnHand,
        },
        {
            {{}, u"ItemID;WarehouseID"_s, Primary},
            {u"ITEMID"_s, Fields::ItemID},
            {u"WAREHOUSEID"_s, Fields::WarehouseID},
        },
    };
    return layout;
}

const TableLayout &iBegun()
{
    static const TableLayout layout{
        u"IBegun"_s,
        {
            Fields::TransType,
            Fields::DocumentID,
            Fields::SavedBy.sized(50),
            Fields::SavedAt,
            Fields::Notes,
        },
        {
            {{}, u"TransType;DocumentID"_s, Primary},
        },
    };
    return layout;
}

const TableLayout &iDocSaved()
{
    static const TableLayout layout{
        u"IDocSaved"_s,
        {
            Fields::TransType,
            Fields::DocumentID,
            Fields::SavedBy.sized(50),
            Fields::SavedAt,
        },
        {
            {{}, u"TransType;DocumentID"_s, Primary},
        },
    };
    return layout;
}

const TableLayout &iCounted()
{
    static const TableLayout layout{
        u"ICounted"_s,
        {
            Fields::ItemID,
            Fields::WarehouseID,
            Fields::CountDate,
        },
        {
            {{}, u"ItemID;WarehouseID"_s, Primary},
        },
    };
    return layout;
}

const TableLayout &iBackup()
{
    static const TableLayout layout{
        u"IBackup"_s,
        {
            Fields::BackupID,
            Fields::SavedBy.sized(50),
            Fields::SavedAt,
        },
        {
            {{}, Fields::BackupID, Primary},
        },
    };
    return layout;
}

const TableLayout &iDataVersion()
{
    static const TableLayout layout{
        u"IDataVersion"_s,
        {
            Fields::VersionID,
            Fields::DataVersion,
            Fields::ProgramVersion.sized(20),
        },
        {
            {{}, Fields::VersionID, Primary},
        },
    };
    return layout;
}

} // namespace Tallymere::Layouts
