#include "data/numbercounter.h"
#include "transactions/documentkinds.h"
#include "transactions/receiptentry.h"
#include "transactions/receiptposting.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("ReceiptKind", text); }

} // namespace

const DocumentKind &DocumentKinds::receipt()
{
    static const DocumentKind kind{
        .name = u"receipts"_s,
        .headerTable = u"IReceipt"_s,
        .lineTable = u"IRecDet"_s,
        .keyField = u"ReceiptID"_s,
        .numberField = u"ReceiptNo"_s,
        .dateField = u"ReceiptDate"_s,
        .counters = {u"ItemCtl"_s, u"NextInvReceiptID"_s, u"NextInvReceiptNo"_s, firstNumber},
        .title = tr("Receipt %1"),
        .newTitle = tr("New Inventory Receipt"),
        .postedRefusal = tr("Posted receipts cannot be changed...\n\nTo undo a receipt after posting, you must "
                            "\"reverse\" it (enter it again with the opposite amount)."),
        .numberTaken = tr("Receipt no. already exists"),
        .nothingEntered = tr("Quantities have not been entered"),
        .locationGone = tr("Warehouse no longer exists"),
        .requiredFields = {u"ReceiptNo"_s, u"GLYear"_s, u"GLPeriod"_s, u"ReceiptDate"_s, u"WarehouseID"_s},
        .screen = u"frmInvReceipt"_s,
        .lineColumns = {{u"QtyReceived"_s, tr("Quantity"), 100, Qt::AlignRight},
                        {u"ItemNo"_s, tr("Item no."), 130, Qt::AlignLeft, u"ItemID"_s},
                        {u"ItemDescription"_s, tr("Description"), 450},
                        {u"UnitCost"_s, tr("Unit Cost"), 110, Qt::AlignRight}},
        .makeEntry = [](Engine::Database &database,
                        Prompts &prompts) { return std::make_unique<ReceiptEntry>(database, prompts); },
        .listScreen = u"frmInvReceipts"_s,
        .listCaption = tr("Inventory Receipts"),
        .columns = {{u"Periodppyyyy"_s, tr("Period"), 70},
                    {u"ReceiptDate"_s, tr("Date"), 85},
                    {u"ReceiptNo"_s, tr("Receipt no."), 90},
                    {u"PurchaseOrderNo"_s, tr("PO"), 90},
                    {u"VendorName"_s, tr("Vendor"), 210},
                    {u"WarehouseName"_s, tr("Location"), 170},
                    {u"Posted"_s, tr("Posted"), 60}},
        .orders = {{u"PERIODDATEDESC"_s}},
        .addListFields =
            [](Engine::Table &receipts) {
                receipts.addLookup(u"VendorName"_s, Engine::FieldType::Text, 40,
                                   {u"VendorID"_s, u"Vendor"_s, u"VendorID"_s, u"VendorName"_s});
            },
        .filterScreen = u"frmInvReceiptsFilter"_s,
        .filterCaption = tr("Inventory Receipts Filter"),
        .notPosted = u"(Posted = false)"_s,
        .find = {.screen = u"frmInvReceiptsFind"_s,
                 .caption = tr("Find Receipt"),
                 .box = u"editReceipt"_s,
                 .label = tr("&Receipt no.:"),
                 .notFound = tr("Receipt '%1' not found")},
        .deleting = {.asks = Question::Confirm,
                     .question = tr("Delete receipt '%1'?"),
                     .nameField = u"ReceiptNo"_s,
                     .posted = tr("Unable to delete receipt '%1'...\nIt has already been posted"),
                     .postedBeforeAsking = {}},
        .postScreen = u"frmInvReceiptsPost"_s,
        .postCaption = tr("Post Inventory Receipts"),
        .posting = receiptPosting(),
        .systemFields = {},
        .numbers = {{u"VendorID"_s, u"Vendor"_s, u"VendorNo"_s, tr("Vendor no. '%1' not found")}},
        .requiredColumns = {u"VendorID"_s, u"QtyReceived"_s, u"UnitCost"_s},
    };
    return kind;
}

} // namespace Tallymere
