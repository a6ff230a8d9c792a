#include "transactions/kinds/adjustmentposting.h"

#include "engine/store/driver.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void readHeader(const Engine::Statement &row, int column, PostingDocument &document)
{
    document.description = row.textAt(column);
}

LineEffect takeLine(const PostingDocument &document, const PostingLine &line, StockBook &stock)
{
    return {std::nullopt, std::nullopt, stock.addToBalance(line.item, document.warehouse, line.quantity)};
}

} // namespace

PostingKind adjustmentPosting()
{
    return {
        .screen = u"frmInvAdjustmentsPost"_s,
        .caption = TransactionsTexts::tr("Post Inventory Adjustments"),
        .unposted = u"IAdjust I WHERE I.Posted = false"_s,
        .headerColumns = u"I.GLYear, I.GLPeriod, I.AdjDate, I.WarehouseID, I.AdjDescription"_s,
        .lines = u"IAdjDet L"_s,
        .lineColumns = u"L.ItemID, L.Quantity"_s,
        .transType = TransType::Adjust,
        .tableInUse = TransactionsTexts::tr(
            "Unable to lock Adjustments table... this table is being updated by another job."),
        .entryOpen =
            TransactionsTexts::tr("A conflicting program is running...\nPlease close 'Inventory Adjustment' form"),
        .waiting = TransactionsTexts::tr("Adjustments to post"),
        .toBePosted = TransactionsTexts::tr("%1 adjustment(s) to be posted"),
        .onePosted = TransactionsTexts::tr("%n adjustment posted"),
        .manyPosted = TransactionsTexts::tr("%n adjustments posted"),
        .readHeader = readHeader,
        .readLine = {},
        .takeLine = takeLine,
    };
}

} // namespace Tallymere
