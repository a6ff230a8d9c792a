#include "transactions/kinds/usageposting.h"

#include "engine/store/driver.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

void readHeader(const Engine::Statement &row, int column, PostingDocument &document)
{
    document.description = u"Inventory Usage No: "_s + row.textAt(column);
}

void readLine(const Engine::Statement &row, int column, PostingLine &line)
{
    if (!row.isNull(column))
        line.unitCost = row.doubleAt(column);
    line.isPosted = row.valueAt(column + 1, Engine::FieldType::Boolean).toBool();
}

LineEffect takeLine(const PostingDocument &document, const PostingLine &line, StockBook &stock)
{
    const auto cost = line.unitCost ? std::optional(Money::fromDouble(*line.unitCost)) : std::nullopt;
    return {cost, std::nullopt, stock.addToBalance(line.item, document.warehouse, 0 - line.quantity)};
}

} // namespace

PostingKind usagePosting()
{
    return {
        .screen = u"frmUsagesPost"_s,
        .caption = TransactionsTexts::tr("Post Inventory Usage Records"),
        .unposted = u"IUsage I WHERE I.Posted = false"_s,
        .headerColumns = u"I.GLYear, I.GLPeriod, I.InventoryDate, I.WarehouseID, I.UsageNo"_s,
        // Only what is stocked is posted; an item that is gone, or whose type is, counts as not.
        .lines = u"IUsageDet L LEFT OUTER JOIN Item S ON L.ItemID = S.ItemID "
                 "LEFT OUTER JOIN ItemType T ON S.ItemTypeID = T.ItemTypeID"_s,
        .lineColumns = u"L.ItemID, L.Quantity, L.UnitCost, T.Inventory"_s,
        .transType = TransType::Usage,
        .tableInUse = TransactionsTexts::tr(
            "Unable to lock Usage Records table... this table is being updated by another job."),
        .entryOpen = TransactionsTexts::tr("A conflicting program is running...\nPlease close 'Usage Record' form"),
        .waiting = TransactionsTexts::tr("Usage to post"),
        .toBePosted = TransactionsTexts::tr("%1 usage record(s) to be posted"),
        .onePosted = TransactionsTexts::tr("%n usage record posted"),
        .manyPosted = TransactionsTexts::tr("%n usage records posted"),
        .readHeader = readHeader,
        .readLine = readLine,
        .takeLine = takeLine,
    };
}

} // namespace Tallymere
