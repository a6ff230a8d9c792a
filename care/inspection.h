#pragma once

#include "care/finding.h"
#include "care/historytally.h"
#include "engine/store/driver.h"

#include <QHash>
#include <QSet>

namespace Tallymere {

// What the checks of one run share: where they read, where they tell, and what one has learned for the next.
class Inspection
{
public:
    using Tell = std::function<void(BookFinding)>;

    // Steps are told now and then while much is read; one that throws ends the run.
    Inspection(Engine::Database &database, Tell tell, std::function<void()> step);

    Engine::Database &database() const { return m_database; }
    Engine::Connection &store() const;
    void found(BookFinding finding) const { m_tell(std::move(finding)); }
    void step() const { m_step(); }
    bool next(Engine::Statement &rows); // the next row, with a step now and then

    const HistoryTally &history(); // read once

    QString itemName(qint64 item); // "Apples (A10)"; one that is gone: "Item with the key 17"
    QString locationName(qint64 location);
    // A record, document or line as users know it, then its key: "Receipt 1004 (ReceiptID 10001), Seq 2". Of one that is gone,
    // and of other
    // tables, the key alone: "Receipts, ReceiptID 10001".
    QString rowName(const QString &table, const QStringList &keyFields, const QStringList &key);

    // Of these items the history may lack rows or have some too many, so that nobody can say what is on hand.
    void doubt(qint64 item) { m_doubted.insert(item); }
    bool isDoubted(qint64 item) const { return m_doubted.contains(item); }

private:
    Engine::Database &m_database;
    Tell m_tell;
    std::function<void()> m_step;
    int m_rows = 0;
    std::optional<HistoryTally> m_history;
    QSet<qint64> m_doubted;
};

} // namespace Tallymere
