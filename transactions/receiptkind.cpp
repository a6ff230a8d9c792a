#include "data/numbercounter.h"
#include "transactions/documentkinds.h"
#include "transactions/receiptentry.h"
#include "transactions/receiptposting.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

const DocumentKind &DocumentKinds::receipt()
{
    static const DocumentKind kind{
        .name = u"receipts"_s,
        .oneName = u"receipt"_s,
        .headerTable = u"IReceipt"_s,
        .lineTable = u"IRecDet"_s,
        .keyField = u"ReceiptID"_s,
        .numberField = u"ReceiptNo"_s,
        .dateField = u"ReceiptDate"_s,
        .entry =
            {
                .screen = u"frmInvReceipt"_s,
                .counters = {u"ItemCtl"_s, u"NextInvReceiptID"_s, u"NextInvReceiptNo"_s, firstNumber},
                .title = TransactionsTexts::tr("Receipt %1"),
                .newTitle = TransactionsTexts::tr("New Inventory Receipt"),
                .postedRefusal = TransactionsTexts::tr(
                    "Posted receipts cannot be changed...\n\nTo undo a receipt after posting, you must "
                    "\"reverse\" it (enter it again with the opposite amount)."),
                .numberTaken = TransactionsTexts::tr("Receipt no. already exists"),
                .closingQuestion = TransactionsTexts::tr("Do you want to save changes?"),
                .nothingEntered = TransactionsTexts::tr("Quantities have not been entered"),
                .locationGone = TransactionsTexts::tr("Warehouse no longer exists"),
                .requiredFields = {u"ReceiptNo"_s, u"GLYear"_s, u"GLPeriod"_s, u"ReceiptDate"_s, u"WarehouseID"_s},
                .lineColumns = {{u"QtyReceived"_s, TransactionsTexts::tr("Quantity"), 100, Qt::AlignRight},
                                {u"ItemNo"_s, TransactionsTexts::tr("Item no."), 130, Qt::AlignLeft, u"ItemID"_s},
                                {u"ItemDescription"_s, TransactionsTexts::tr("Description"), 450},
                                {u"UnitCost"_s, TransactionsTexts::tr("Unit Cost"), 110, Qt::AlignRight}},
                .make = [](Engine::Database &database,
                           Prompts &prompts) { return std::make_unique<ReceiptEntry>(database, prompts); },
            },
        .list =
            {
                .screen = u"frmInvReceipts"_s,
                .caption = TransactionsTexts::tr("Inventory Receipts"),
                .columns = {{u"Periodppyyyy"_s, TransactionsTexts::tr("Period"), 70},
                            {u"ReceiptDate"_s, TransactionsTexts::tr("Date"), 85},
                            {u"ReceiptNo"_s, TransactionsTexts::tr("Receipt no."), 90},
                            {u"PurchaseOrderNo"_s, TransactionsTexts::tr("PO"), 90},
                            {u"VendorName"_s, TransactionsTexts::tr("Vendor"), 210},
                            {u"WarehouseName"_s, TransactionsTexts::tr("Location"), 170},
                            {u"Posted"_s, TransactionsTexts::tr("Posted"), 60}},
                .orders = {{u"PERIODDATEDESC"_s}},
                .addFields =
                    [](Engine::Table &receipts) {
                        receipts.addLookup(u"VendorName"_s, Engine::FieldType::Text, 40,
                                           {u"VendorID"_s, u"Vendor"_s, u"VendorID"_s, u"VendorName"_s});
                    },
                .report = u"TrptInvReceipts"_s,
                .filter =
                    {
                        .screen = u"frmInvReceiptsFilter"_s,
                        .caption = TransactionsTexts::tr("Inventory Receipts Filter"),
                        .notPosted = u"(Posted = false)"_s,
                    },
                .find = DocumentKind::Find{.screen = u"frmInvReceiptsFind"_s,
                                           .caption = TransactionsTexts::tr("Find Receipt"),
                                           .box = u"editReceipt"_s,
                                           .label = TransactionsTexts::tr("&Receipt no.:"),
                                           .notFound = TransactionsTexts::tr("Receipt '%1' not found")},
                .deleting = {.asks = Question::Confirm,
                             .question = TransactionsTexts::tr("Delete receipt '%1'?"),
                             .nameField = u"ReceiptNo"_s,
                             .posted = TransactionsTexts::tr(
                                 "Unable to delete receipt '%1'...\nIt has already been posted")},
            },
        .posting = receiptPosting(),
        .files =
            {
                .numbers = {{u"VendorID"_s, u"Vendor"_s, u"VendorNo"_s,
                             TransactionsTexts::tr("Vendor no. '%1' not found")}},
                .requiredColumns = {u"VendorID"_s, u"QtyReceived"_s, u"UnitCost"_s},
            },
    };
    return kind;
}

} // namespace Tallymere
