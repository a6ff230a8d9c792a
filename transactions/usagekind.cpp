#include "transactions/documentkinds.h"
#include "transactions/usageentry.h"
#include "transactions/usageposting.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("UsageKind", text); }

constexpr qint64 restart = 10'001;

} // namespace

const DocumentKind &DocumentKinds::usage()
{
    static const DocumentKind kind{
        .name = u"usage"_s,
        .headerTable = u"IUsage"_s,
        .lineTable = u"IUsageDet"_s,
        .keyField = u"UsageID"_s,
        .numberField = u"UsageNo"_s,
        .dateField = u"InventoryDate"_s,
        .counters = {u"ARInvCtl"_s, u"NextInvoiceID"_s, u"NextInvoiceNo"_s, restart},
        .title = tr("Inventory Usage %1"),
        .newTitle = tr("New Inventory Usage"),
        .postedRefusal = tr("Posted usage records cannot be changed...\n\nTo undo usage after posting, you must "
                            "\"reverse\" it (enter it again with the opposite amount)."),
        .numberTaken = tr("Inventory Usage no. already exists"),
        .nothingEntered = tr("No inventory usage has been entered"),
        .locationGone = tr("Location no longer exists"),
        .requiredFields = {u"WarehouseID"_s, u"InventoryDate"_s, u"GLPeriod"_s, u"GLYear"_s},
        .screen = u"frmUsage"_s,
        .lineColumns = {{u"Quantity"_s, tr("Quantity"), 90, Qt::AlignRight},
                        {u"ItemNo"_s, tr("Item"), 110, Qt::AlignLeft, u"ItemID"_s},
                        {u"ItemOvDesc"_s, tr("Override Description"), 170},
                        {u"ItemDescription"_s, tr("Description"), 230},
                        {u"UnitCost"_s, tr("Unit Cost"), 90, Qt::AlignRight},
                        {u"ExtAmount"_s, tr("Ext Amount"), 100, Qt::AlignRight}},
        .makeEntry = [](Engine::Database &database,
                        Prompts &prompts) { return std::make_unique<UsageEntry>(database, prompts); },
        .opensFromHistory = false,
        .listScreen = u"frmUsages"_s,
        .listCaption = tr("Inventory Usage"),
        .columns = {{u"InventoryDate"_s, tr("Date"), 90},
                    {u"WarehouseName"_s, tr("Location"), 230},
                    {u"UsageNo"_s, tr("Usage no."), 90},
                    {u"Posted"_s, tr("Posted"), 60},
                    {u"Periodppyyyy"_s, tr("Period"), 80}},
        .orders = {{u"INVENTORYDATEUSAGENODESC"_s, tr("&Date"), u"mnuSortDate"_s},
                   {u"USAGENO"_s, tr("&Usage no."), u"mnuSortUsageNo"_s}},
        .addListFields = {},
        .filterScreen = u"frmUsagesFilter"_s,
        .filterCaption = tr("Inventory Usage Filter"),
        .filterBoxes = {DocumentKind::locationBox(),
                        {.name = u"cboCurrency"_s, .label = tr("C&urrency:"), .list = u"Currency"_s}},
        .notPosted = u"(Posted <> true)"_s,
        .find = {.screen = u"frmUsagesFind"_s,
                 .caption = tr("Find Usage"),
                 .box = u"editUsageNo"_s,
                 .label = tr("&Usage no.:"),
                 .notFound = tr("Usage number '%1' not found")},
        .deleting = {.asks = Question::YesNo,
                     .question = tr("Delete usage number'%1'?"),
                     .nameField = u"UsageNo"_s,
                     .posted =
                         tr("Unable to delete usage %1....\nIt has been posted and therefore can't be deleted."),
                     .postedBeforeAsking = tr("A usage record that has been Posted \ncan't be deleted!")},
        .postScreen = u"frmUsagesPost"_s,
        .postCaption = tr("Post Inventory Usage Records"),
        .posting = usagePosting(),
        .systemFields = {u"CustomerID"_s, u"InvoiceAmount"_s, u"PaidAmount"_s, u"DiscTakenAmount"_s,
                         u"WriteOffAmount"_s, u"Owing"_s, u"PurchaseOrderNo"_s, u"ExchangeRate"_s, u"TaxCodes"_s},
        .numbers = {},
        .requiredColumns = {u"Quantity"_s},
    };
    return kind;
}

} // namespace Tallymere
