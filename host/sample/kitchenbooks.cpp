#include "host/sample/kitchenbooks.h"

#include "base/rounding.h"
#include "data/fiscalperiod.h"
#include "data/numbercounter.h"
#include "data/transtypes.h"

using namespace Qt::StringLiterals;
using Engine::Value;

namespace Tallymere {

namespace {

constexpr qint64 lowestNumber = 1001;
constexpr qint64 highestNumber = 10'000'000;
constexpr qint64 usageRestart = 10'001;

// The kitchen's fiscal year begins in December of the year before.
Period periodOf(QDate date)
{
    return date.month() == 12 ? Period{date.year() + 1, 1} : Period{date.year(), date.month() + 1};
}

Value typeValue(TransType type) { return static_cast<int>(type); }

} // namespace

KitchenBooks::KitchenBooks(Engine::Database &database)
    : m_database(database)
    , m_receipts(database.connection(), u"IReceipt"_s,
                 {u"ReceiptID"_s, u"ReceiptNo"_s, u"GLYear"_s, u"GLPeriod"_s, u"ReceiptDate"_s,
                  u"PurchaseOrderNo"_s, u"VendorID"_s, u"WarehouseID"_s, u"Posted"_s})
    , m_receiptLines(database.connection(), u"IRecDet"_s,
                     {u"ReceiptID"_s, u"Seq"_s, u"ItemID"_s, u"QtyReceived"_s, u"UnitCost"_s})
    , m_usages(database.connection(), u"IUsage"_s,
               {u"UsageID"_s, u"UsageNo"_s, u"WarehouseID"_s, u"Description"_s, u"InventoryDate"_s,
                u"InvoiceAmount"_s, u"GLPeriod"_s, u"GLYear"_s, u"Printed"_s, u"Posted"_s})
    , m_usageLines(database.connection(), u"IUsageDet"_s,
                   {u"UsageID"_s, u"Seq"_s, u"Quantity"_s, u"ItemID"_s, u"UnitCost"_s})
    , m_adjustments(database.connection(), u"IAdjust"_s,
                    {u"AdjustmentID"_s, u"GLYear"_s, u"GLPeriod"_s, u"AdjDate"_s, u"AdjDescription"_s,
                     u"WarehouseID"_s, u"Posted"_s})
    , m_adjustmentLines(database.connection(), u"IAdjDet"_s,
                        {u"AdjustmentID"_s, u"Seq"_s, u"ItemID"_s, u"Quantity"_s})
    , m_history(database.connection(), u"IHist"_s,
                {u"ItemID"_s, u"WarehouseID"_s, u"GLYear"_s, u"GLPeriod"_s, u"TransType"_s, u"TransDate"_s,
                 u"Quantity"_s, u"UnitCost"_s, u"TransDescription"_s, u"ReceiptID"_s, u"AdjustmentID"_s,
                 u"UsageID"_s})
{
    readCounters();
}

// Keys begin with 1: a key of 0 would look like none.
void KitchenBooks::readCounters()
{
    takeNumbers(m_database, u"ItemCtl"_s, [this](CounterRow &counters) {
        counters.restartOutside(u"NextInvReceiptNo", lowestNumber, highestNumber, lowestNumber);
        m_receiptNo = counters.value(u"NextInvReceiptNo");
        m_receiptId = std::max<qint64>(1, counters.value(u"NextInvReceiptID"));
        m_adjustmentId = std::max<qint64>(1, counters.value(u"NextInvAdjustmentID"));
    });
    takeNumbers(m_database, u"ARInvCtl"_s, [this](CounterRow &counters) {
        counters.restartOutside(u"NextInvoiceNo", lowestNumber, highestNumber, usageRestart);
        m_usageNo = counters.value(u"NextInvoiceNo");
        m_usageId = std::max<qint64>(1, counters.value(u"NextInvoiceID"));
    });
}

void KitchenBooks::writeCounters()
{
    takeNumbers(m_database, u"ItemCtl"_s, [this](CounterRow &counters) {
        counters.set(u"NextInvReceiptNo", m_receiptNo);
        counters.set(u"NextInvReceiptID", m_receiptId);
        counters.set(u"NextInvAdjustmentID", m_adjustmentId);
    });
    takeNumbers(m_database, u"ARInvCtl"_s, [this](CounterRow &counters) {
        counters.set(u"NextInvoiceNo", m_usageNo);
        counters.set(u"NextInvoiceID", m_usageId);
    });
}

void KitchenBooks::addReceipt(const KitchenDocument &document, const std::vector<KitchenLine> &lines, bool posted)
{
    const Period period = periodOf(document.date);
    const QString order = u"PO%1"_s.arg(m_receiptNo + 20'000);
    const QString number = QString::number(m_receiptNo++);
    m_receipts.add({m_receiptId, number, period.year, period.number, document.date, order, document.vendor,
                    document.warehouse, posted});
    const QString description = u"Receipt: %1   PO: %2"_s.arg(number, order);
    int seq = 0;
    for (const KitchenLine &line : lines) {
        m_receiptLines.add({m_receiptId, ++seq, line.item, line.quantity, line.entered});
        if (posted)
            m_history.add({line.item, document.warehouse, period.year, period.number,
                           typeValue(TransType::PoReceipt), document.date, line.quantity, line.cost, description,
                           m_receiptId, Value(), Value()});
    }
    ++m_receiptId;
}

void KitchenBooks::addUsage(const KitchenDocument &document, const std::vector<KitchenLine> &lines, bool posted)
{
    const Period period = periodOf(document.date);
    const QString number = QString::number(m_usageNo++);
    const QString description = u"Inventory Usage No: "_s + number;
    Engine::Money amount;
    int seq = 0;
    for (const KitchenLine &line : lines) {
        m_usageLines.add({m_usageId, ++seq, line.quantity, line.item, line.cost});
        if (posted)
            m_history.add({line.item, document.warehouse, period.year, period.number, typeValue(TransType::Usage),
                           document.date, line.quantity, line.cost, description, Value(), Value(), m_usageId});
        amount = amount + toCents(static_cast<long double>(line.quantity) * line.cost.toLongDouble());
    }
    m_usages.add({m_usageId++, number, document.warehouse,
                  u"Meals of %1"_s.arg(document.date.toString(Qt::ISODate)), document.date, amount, period.number,
                  period.year, false, posted});
}

void KitchenBooks::addAdjustment(const KitchenDocument &document, const std::vector<KitchenLine> &lines,
                                 bool posted)
{
    const Period period = periodOf(document.date);
    const QString description = u"Spoilage and recounts of %1"_s.arg(document.date.toString(Qt::ISODate));
    m_adjustments.add(
        {m_adjustmentId, period.year, period.number, document.date, description, document.warehouse, posted});
    int seq = 0;
    for (const KitchenLine &line : lines) {
        m_adjustmentLines.add({m_adjustmentId, ++seq, line.item, line.quantity});
        if (!posted)
            continue;
        m_history.add({line.item, document.warehouse, period.year, period.number, typeValue(TransType::Adjust),
                       document.date, line.quantity, Value(), description, Value(), m_adjustmentId, Value()});
    }
    ++m_adjustmentId;
}

void KitchenBooks::finish()
{
    for (BulkInsert *table :
         {&m_receipts, &m_receiptLines, &m_usages, &m_usageLines, &m_adjustments, &m_adjustmentLines, &m_history})
        table->finish();
    m_database.connection().drain();
    writeCounters();
}

} // namespace Tallymere
