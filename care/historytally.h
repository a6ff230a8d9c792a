#pragma once

#include <functional>
#include <QHash>
#include <utility>

namespace Engine {
class Connection;
class Statement;
} // namespace Engine

namespace Tallymere {

// What the history comes to, read once from its first row to its last.
class HistoryTally
{
public:
    // Of one document: its rows and the sum of their quantities, as entered.
    struct Posted
    {
        qint64 rows = 0;
        double quantity = 0;
    };
    using Stock = QHash<std::pair<qint64, qint64>, double>; // by item and location; 0 for none

    // The step is told with every row.
    HistoryTally(Engine::Connection &store, const std::function<bool(Engine::Statement &)> &next);

    const Stock &stock() const { return m_stock; }
    // Of the documents of a kind, by their keys; rows that name no document under 0. The kind counts from 0.
    const QHash<qint64, Posted> &documents(qsizetype kind) const { return m_documents.at(kind); }

private:
    Stock m_stock;
    QList<QHash<qint64, Posted>> m_documents;
};

} // namespace Tallymere
