#include "data/numbercounter.h"
#include "transactions/documentkinds.h"
#include "transactions/texts.h"
#include "transactions/usageentry.h"
#include "transactions/usageposting.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

const DocumentKind &DocumentKinds::usage()
{
    static const DocumentKind kind{
        .name = u"usage"_s,
        .oneName = u"usage"_s,
        .headerTable = u"IUsage"_s,
        .lineTable = u"IUsageDet"_s,
        .keyField = u"UsageID"_s,
        .numberField = u"UsageNo"_s,
        .dateField = u"InventoryDate"_s,
        .entry =
            {
                .screen = u"frmUsage"_s,
                .counters = {u"ARInvCtl"_s, u"NextInvoiceID"_s, u"NextInvoiceNo"_s, firstCountedKey + 1},
                .title = TransactionsTexts::tr("Inventory Usage %1"),
                .newTitle = TransactionsTexts::tr("New Inventory Usage"),
                .postedRefusal = TransactionsTexts::tr(
                    "Posted usage records cannot be changed...\n\nTo undo usage after posting, you must "
                    "\"reverse\" it (enter it again with the opposite amount)."),
                .numberTaken = TransactionsTexts::tr("Inventory Usage no. already exists"),
                .closingQuestion = TransactionsTexts::tr("Do you want to save your changes?"),
                .nothingEntered = TransactionsTexts::tr("No inventory usage has been entered"),
                .locationGone = TransactionsTexts::tr("Location no longer exists"),
                .requiredFields = {u"UsageNo"_s, u"WarehouseID"_s, u"InventoryDate"_s, u"GLPeriod"_s, u"GLYear"_s},
                .lineColumns = {{u"Quantity"_s, TransactionsTexts::tr("Quantity"), 90, Qt::AlignRight},
                                {u"ItemNo"_s, TransactionsTexts::tr("Item"), 110, Qt::AlignLeft, u"ItemID"_s},
                                {u"ItemOvDesc"_s, TransactionsTexts::tr("Override Description"), 170},
                                {u"ItemDescription"_s, TransactionsTexts::tr("Description"), 330},
                                {u"UnitCost"_s, TransactionsTexts::tr("Unit Cost"), 90, Qt::AlignRight},
                                {u"ExtAmount"_s, TransactionsTexts::tr("Ext Amount"), 100, Qt::AlignRight}},
                .make = [](Engine::Database &database,
                           Prompts &prompts) { return std::make_unique<UsageEntry>(database, prompts); },
                .opensFromHistory = false,
                .leadsListUnsaved = true,
            },
        .list =
            {
                .screen = u"frmUsages"_s,
                .caption = TransactionsTexts::tr("Inventory Usage"),
                .columns = {{u"InventoryDate"_s, TransactionsTexts::tr("Date"), 90},
                            {u"WarehouseName"_s, TransactionsTexts::tr("Location"), 230},
                            {u"UsageNo"_s, TransactionsTexts::tr("Usage no."), 90},
                            {u"Posted"_s, TransactionsTexts::tr("Posted"), 60},
                            {u"Periodppyyyy"_s, TransactionsTexts::tr("Period"), 80}},
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
                     .nameField = u"UsageNo"_s,
                     .posted = TransactionsTexts::tr(
                         "Unable to delete usage %1....\nIt has been posted and therefore can't be deleted."),
                     .postedBeforeAsking =
                         TransactionsTexts::tr("A usage record that has been Posted \ncan't be deleted!")},
            },
        .posting = usagePosting(),
        .files =
            {
                .systemFields = {u"CustomerID"_s, u"InvoiceAmount"_s, u"PaidAmount"_s, u"DiscTakenAmount"_s,
                                 u"WriteOffAmount"_s, u"Owing"_s, u"PurchaseOrderNo"_s, u"ExchangeRate"_s,
                                 u"TaxCodes"_s},
                .requiredColumns = {u"Quantity"_s},
            },
    };
    return kind;
}

} // namespace Tallymere
