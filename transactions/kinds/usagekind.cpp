#include "data/fields.h"
#include "data/numbercounter.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/kinds/usageentry.h"
#include "transactions/kinds/usageposting.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

const DocumentKind &DocumentKinds::usage()
{
    static const DocumentKind kind{
        .name = u"usage"_s,
        .oneName = u"usage"_s,
        .headerTable = u"IUsage"_s,
        .lineTable = u"IUsageDet"_s,
        .keyField = Fields::UsageID,
        .numberField = Fields::UsageNo,
        .dateField = Fields::InventoryDate,
        .entry =
            {
                .screen = u"frmUsage"_s,
                .counters = {u"ARInvCtl"_s, Fields::NextInvoiceID, Fields::NextInvoiceNo, firstCountedKey + 1},
                .title = TransactionsTexts::tr("Inventory Usage %1"),
                .newTitle = TransactionsTexts::tr("New Inventory Usage"),
                .postedRefusal = TransactionsTexts::tr(
                    "Posted usage records cannot be changed...\n\nTo undo usage after posting, you must "
                    "\"reverse\" it (enter it again with the opposite amount)."),
                .numberTaken = TransactionsTexts::tr("Inventory Usage no. already exists"),
                .closingQuestion = TransactionsTexts::tr("Do you want to save your changes?"),
                .nothingEntered = TransactionsTexts::tr("No inventory usage has been entered"),
                .locationGone = TransactionsTexts::tr("Location no longer exists"),
                .requiredFields = {Fields::UsageNo, Fields::WarehouseID, Fields::InventoryDate, Fields::GLPeriod,
                                   Fields::GLYear},
                .descriptionField = Fields::Description,
                .ownFields = {Fields::Printed},
                .lineColumns = {{Fields::Quantity, TransactionsTexts::tr("Quantity"), 90, Qt::AlignRight},
                                {Fields::ItemNo, TransactionsTexts::tr("Item"), 110, Qt::AlignLeft, Fields::ItemID},
                                {Fields::ItemOvDesc, TransactionsTexts::tr("Override Description"), 170},
                                {Fields::ItemDescription, TransactionsTexts::tr("Description"), 330},
                                {Fields::UnitCost, TransactionsTexts::tr("Unit Cost"), 90, Qt::AlignRight},
                                {Fields::ExtAmount, TransactionsTexts::tr("Ext Amount"), 100, Qt::AlignRight}},
                .make = [](Engine::Database &database,
                           Prompts &prompts) { return std::make_unique<UsageEntry>(database, prompts); },
                .opensFromHistory = false,
                .leadsListUnsaved = true,
            },
        .list =
            {
                .screen = u"frmUsages"_s,
                .caption = TransactionsTexts::tr("Inventory Usage"),
                .columns = {{Fields::InventoryDate, TransactionsTexts::tr("Date"), 90},
                            {Fields::WarehouseName, TransactionsTexts::tr("Location"), 230},
                            {Fields::UsageNo, TransactionsTexts::tr("Usage no."), 90},
                            DocumentKinds::postedColumn(),
                            {Fields::Periodppyyyy, TransactionsTexts::tr("Period"), 80}},
                .orders = {{u"INVENTORYDATEUSAGENODESC"_s, TransactionsTexts::tr("&Date"), u"mnuSortDate"_s},
                           {u"USAGENO"_s, TransactionsTexts::tr("&Usage no."), u"mnuSortUsageNo"_s}},
                .report = u"TrptUsages"_s,
                .filter =
                    {
                        .screen = u"frmUsagesFilter"_s,
                        .caption = TransactionsTexts::tr("Inventory Usage Filter"),
                        .boxes = {DocumentKind::locationBox(),
                                  {.name = u"cboCurrency"_s,
                                   .label = TransactionsTexts::tr("C&urrency:"),
                                   .list = u"Currency"_s}},
                        .notPosted = u"(Posted <> true)"_s,
                    },
                .find = DocumentKind::Find{.screen = u"frmUsagesFind"_s,
                                           .caption = TransactionsTexts::tr("Find Usage"),
                                           .box = u"editUsageNo"_s,
                                           .label = TransactionsTexts::tr("&Usage no.:"),
                                           .notFound = TransactionsTexts::tr("Usage number '%1' not found")},
                .deleting =
                    {.question = TransactionsTexts::tr("Delete usage number'%1'?"),
                     .nameField = Fields::UsageNo,
                     .posted = TransactionsTexts::tr(
                         "Unable to delete usage %1....\nIt has been posted and therefore can't be deleted."),
                     .postedBeforeAsking =
                         TransactionsTexts::tr("A usage record that has been Posted \ncan't be deleted!")},
            },
        .posting = usagePosting(),
        .files =
            {
                .systemFields = {Fields::CustomerID, Fields::InvoiceAmount, Fields::PaidAmount,
                                 Fields::DiscTakenAmount, Fields::WriteOffAmount, Fields::Owing,
                                 Fields::PurchaseOrderNo, Fields::ExchangeRate, Fields::TaxCodes},
                .requiredColumns = {Fields::Quantity},
            },
    };
    return kind;
}

} // namespace Tallymere
