#include "transactions/kinds/receiptposting.h"

#include "engine/store/driver.h"
#include "transactions/kinds/receiptcost.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

void readHeader(const Engine::Statement &row, int column, PostingDocument &document)
{
    const QString order = row.textAt(column + 1);
    document.description = u"Receipt: "_s + row.textAt(column);
    if (!order.isEmpty())
        document.description += u"   PO: "_s + order;
    document.exchangeRate = row.doubleAt(column + 2);
}

void readLine(const Engine::Statement &row, int column, PostingLine &line) { line.unitCost = row.doubleAt(column); }

std::optional<Money> averageAfter(const StockBook &stock, const PostingLine &line, Money cost)
{
    if (line.item.isNull())
        return std::nullopt;
    const qint64 item = line.item.toInt64();
    const auto average = stock.averageCost(item);
    return average ? averageAfterReceipt({*average, stock.onHand(item)}, line.quantity, cost) : std::nullopt;
}

LineEffect takeLine(const PostingDocument &document, const PostingLine &line, StockBook &stock)
{
    const Money cost = lineCost(Money::fromDouble(line.unitCost.value_or(0)), document.exchangeRate);
    const std::optional<Money> average = averageAfter(stock, line, cost);
    if (average)
        stock.setAverageCost(line.item.toInt64(), *average);
    return {cost, average, stock.addToBalance(line.item, document.warehouse, line.quantity)};
}

} // namespace

PostingKind receiptPosting()
{
    return {
        .screen = u"frmInvReceiptsPost"_s,
        .caption = TransactionsTexts::tr("Post Inventory Receipts"),
        .unposted = u"IReceipt I INNER JOIN Vendor V ON I.VendorID = V.VendorID "
                    "LEFT OUTER JOIN Currency C ON V.CurrencyID = C.CurrencyID WHERE I.Posted = false"_s,
        .headerColumns =
            u"I.GLYear, I.GLPeriod, I.ReceiptDate, I.WarehouseID, I.ReceiptNo, I.PurchaseOrderNo, C.ExchangeRate"_s,
        .lines = u"IRecDet L"_s,
        .lineColumns = u"L.ItemID, L.QtyReceived, L.UnitCost"_s,
        .transType = TransType::PoReceipt,
        .tableInUse =
            TransactionsTexts::tr("Unable to lock Receipts table... this table is being updated by another job."),
        .furtherLocks = {{u"Item"_s,
                          TransactionsTexts::tr(
                              "Unable to lock Item table... this table is being updated by another job.")}},
        .entryOpen =
            TransactionsTexts::tr("A conflicting program is running...\nPlease close 'Inventory Receipt' form"),
        .waiting = TransactionsTexts::tr("Receipts to post"),
        .toBePosted = TransactionsTexts::tr("%1 receipt(s) to be posted"),
        .onePosted = TransactionsTexts::tr("%n receipt posted"),
        .manyPosted = TransactionsTexts::tr("%n receipts posted"),
        .readHeader = readHeader,
        .readLine = readLine,
        .takeLine = takeLine,
    };
}

} // namespace Tallymere
