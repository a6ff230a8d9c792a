#pragma once

#include "engine/store/database.h"
#include "engine/values/money.h"
#include "host/sample/multirowinsert.h"

#include <QDate>
#include <QString>

namespace Tallymere {

// A document of the large kitchen, line by line.
struct KitchenDocument
{
    QDate date;
    qint64 warehouse = 0;
    qint64 vendor = 0; // receipts only
};

struct KitchenLine
{
    qint64 item = 0;
    double quantity = 0;
    Engine::Money entered; // the unit cost as entered, in the vendor's currency
    Engine::Money cost; // the unit cost in the home currency
};

// Writes documents with their history rows, as entering and posting would have left them. Numbers run on from the
// database's counters, which are set by finish(). Within the caller's transaction.
class KitchenBooks
{
public:
    explicit KitchenBooks(Engine::Database &database);

    void addReceipt(const KitchenDocument &document, const std::vector<KitchenLine> &lines, bool posted = true);
    void addUsage(const KitchenDocument &document, const std::vector<KitchenLine> &lines, bool posted = true);
    void addAdjustment(const KitchenDocument &document, const std::vector<KitchenLine> &lines, bool posted = true);
    void finish();

private:
    void readCounters();
    void writeCounters();

    Engine::Database &m_database;
    MultiRowInsert m_receipts;
    MultiRowInsert m_receiptLines;
    MultiRowInsert m_usages;
    MultiRowInsert m_usageLines;
    MultiRowInsert m_adjustments;
    MultiRowInsert m_adjustmentLines;
    MultiRowInsert m_history;
    qint64 m_receiptId = 0, m_receiptNo = 0;
    qint64 m_usageId = 0, m_usageNo = 0;
    qint64 m_adjustmentId = 0;
};

} // namespace Tallymere
