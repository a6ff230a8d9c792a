#include "data/fields.h"
#include "data/numbercounter.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/kinds/receiptentry.h"
#include "transactions/kinds/receiptposting.h"
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
        .keyField = Fields::ReceiptID,
        .numberField = Fields::ReceiptNo,
        .dateField = Fields::ReceiptDate,
        .entry =
            {
                .screen = u"frmInvReceipt"_s,
                .counters = {u"ItemCtl"_s, Fields::NextInvReceiptID, Fields::NextInvReceiptNo, firstNumber},
                .title = TransactionsTexts::tr("Receipt %1"),
                .newTitle = TransactionsTexts::tr("New Inventory Receipt"),
                .postedRefusal = TransactionsTexts::tr(
                    "Posted receipts cannot be changed...\n\nTo undo a receipt after posting, you must "
                    "\"reverse\" it (enter it again with the opposite amount)."),
                .numberTaken = TransactionsTexts::tr("Receipt no. already exists"),
                .closingQuestion = TransactionsTexts::tr("Do you want to save changes?"),
                .nothingEntered = TransactionsTexts::tr("Quantities have not been entered"),
                .locationGone = TransactionsTexts::tr("Warehouse no longer exists"),
                .requiredFields = {Fields::ReceiptNo, Fields::GLYear, Fields::GLPeriod, Fields::ReceiptDate,
                                   Fields::WarehouseID},
                .lineColumns = {{Fields::QtyReceived, TransactionsTexts::tr("Quantity"), 100, Qt::AlignRight},
                                {Fields::ItemNo, TransactionsTexts::tr("Item no."), 130, Qt::AlignLeft,
                                 Fields::ItemID},
                                {Fields::ItemDescription, TransactionsTexts::tr("Description"), 450},
                                {Fields::UnitCost, TransactionsTexts::tr("Unit Cost"), 110, Qt::AlignRight}},
                .toldColumns = {{.field = ReceiptEntry::Amount,
                                 .title = TransactionsTexts::tr("Amount"),
                                 .width = 100,
                                 .alignment = Qt::AlignRight,
                                 .setOff = true}},
                .make = [](Engine::Database &database,
                           Prompts &prompts) { return std::make_unique<ReceiptEntry>(database, prompts); },
            },
        .list =
            {
                .screen = u"frmInvReceipts"_s,
                .caption = TransactionsTexts::tr("Inventory Receipts"),
                .columns = {{Fields::Periodppyyyy, TransactionsTexts::tr("Period"), 70},
                            {Fields::ReceiptDate, TransactionsTexts::tr("Date"), 85},
                            {Fields::ReceiptNo, TransactionsTexts::tr("Receipt no."), 90},
                            {Fields::PurchaseOrderNo, TransactionsTexts::tr("PO"), 80},
                            {Fields::VendorName, TransactionsTexts::tr("Vendor"), 210},
                            {Fields::WarehouseName, TransactionsTexts::tr("Location"), 195},
                            DocumentKinds::postedColumn()},
                .orders = {{u"PERIODDATEDESC"_s}},
                .addFields =
                    [](Engine::Table &receipts) {
                        receipts.addLookup(Fields::VendorName.sized(40),
                                           {Fields::VendorID, u"Vendor"_s, Fields::VendorID, Fields::VendorName});
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
                             .nameField = Fields::ReceiptNo,
                             .posted = TransactionsTexts::tr(
                                 "Unable to delete receipt '%1'...\nIt has already been posted")},
            },
        .posting = receiptPosting(),
        .files =
            {
                .numbers = {{Fields::VendorID, u"Vendor"_s, Fields::VendorNo,
                             TransactionsTexts::tr("Vendor no. '%1' not found")}},
                .requiredColumns = {Fields::VendorID, Fields::QtyReceived, Fields::UnitCost},
            },
    };
    return kind;
}

} // namespace Tallymere
