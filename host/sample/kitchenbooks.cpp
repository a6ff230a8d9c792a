#include "host/sample/kitchenbooks.h"

#include "base/rounding.h"
#include "data/fields.h"
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
                 {Fields::ReceiptID, Fields::ReceiptNo, Fields::GLYear, Fields::GLPeriod, Fields::ReceiptDate,
                  Fields::PurchaseOrderNo, Fields::VendorID, Fields::WarehouseID, Fields::Posted})
    , m_receiptLines(database.connection(), u"IRecDet"_s,
                     {Fields::ReceiptID, Fields::Seq, Fields::ItemID, Fields::QtyReceived, Fields::UnitCost})
    , m_usages(database.connection(), u"IUsage"_s,
               {Fields::UsageID, Fields::UsageNo, Fields::WarehouseID, Fields::Description, Fields::InventoryDate,
                Fields::InvoiceAmount, Fields::GLPeriod, Fields::GLYear, Fields::Printed, Fields::Posted})
    , m_usageLines(database.connection(), u"IUsageDet"_s,
                   {Fields::UsageID, Fields::Seq, Fields::Quantity, Fields::ItemID, Fields::UnitCost})
    , m_adjustments(database.connection(), u"IAdjust"_s,
                    {Fields::AdjustmentID, Fields::GLYear, Fields::GLPeriod, Fields::AdjDate,
                     Fields::AdjDescription, Fields::WarehouseID, Fields::Posted})
    , m_adjustmentLines(database.connection(), u"IAdjDet"_s,
                        {Fields::AdjustmentID, Fields::Seq, Fields::ItemID, Fields::Quantity})
    , m_history(database.connection(), u"IHist"_s,
                {Fields::ItemID, Fields::WarehouseID, Fields::GLYear, Fields::GLPeriod, Fields::TransType,
                 Fields::TransDate, Fields::Quantity, Fields::UnitCost, Fields::TransDescription, Fields::ReceiptID,
                 Fields::AdjustmentID, Fields::UsageID})
{
    readCounters();
}

// Keys begin with 1: a key of 0 would look like none.
void KitchenBooks::readCounters()
{
    takeNumbers(m_database, u"ItemCtl"_s, [this](CounterRow &counters) {
        counters.restartOutside(Fields::NextInvReceiptNo, lowestNumber, highestNumber, lowestNumber);
        m_receiptNo = counters.value(Fields::NextInvReceiptNo);
        m_receiptId = std::max<qint64>(1, counters.value(Fields::NextInvReceiptID));
        m_adjustmentId = std::max<qint64>(1, counters.value(Fields::NextInvAdjustmentID));
    });
    takeNumbers(m_database, u"ARInvCtl"_s, [this](CounterRow &counters) {
        counters.restartOutside(Fields::NextInvoiceNo, lowestNumber, highestNumber, usageRestart);
        m_usageNo = counters.value(Fields::NextInvoiceNo);
        m_usageId = std::max<qint64>(1, counters.value(Fields::NextInvoiceID));
    });
}

void KitchenBooks::writeCounters()
{
    takeNumbers(m_database, u"ItemCtl"_s, [this](CounterRow &counters) {
        counters.set(Fields::NextInvReceiptNo, m_receiptNo);
        counters.set(Fields::NextInvReceiptID, m_receiptId);
        counters.set(Fields::NextInvAdjustmentID, m_adjustmentId);
    });
    takeNumbers(m_database, u"ARInvCtl"_s, [this](CounterRow &counters) {
        counters.set(Fields::NextInvoiceNo, m_usageNo);
        counters.set(Fields::NextInvoiceID, m_usageId);
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
        amount = amount + amountOf(line.quantity, line.cost);
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
    for (MultiRowInsert *table :
         {&m_receipts, &m_receiptLines, &m_usages, &m_usageLines, &m_adjustments, &m_adjustmentLines, &m_history})
        table->finish();
    m_database.connection().drain();
    writeCounters();
}

} // namespace Tallymere
