#include "care/historytally.h"

#include "engine/store/driver.h"
#include "transactions/documents/documentkinds.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

HistoryTally::HistoryTally(Engine::Connection &store, const std::function<bool(Engine::Statement &)> &next)
{
    const QList<const DocumentKind *> &kinds = DocumentKinds::all();
    m_documents.resize(kinds.size());
    QHash<int, qsizetype> kindOf;
    QStringList keys;
    for (qsizetype kind = 0; kind < kinds.size(); ++kind) {
        kindOf.insert(static_cast<int>(kinds[kind]->posting.transType), kind);
        keys << kinds[kind]->keyField;
    }
    constexpr int firstKey = 4;
    // In the order of posting: the balances were added up in the same, and so come to the same last digit.
    const Engine::StatementPtr row =
        store.prepare(u"SELECT ItemID, WarehouseID, TransType, Quantity, %1 FROM IHist ORDER BY IHistID"_s.arg(
            keys.join(", "_L1)));
    while (next(*row)) {
        const int type = static_cast<int>(row->intAt(2));
        const double quantity = row->doubleAt(3);
        m_stock[{row->intAt(0), row->intAt(1)}] += stockChange(type, quantity);
        const qsizetype kind = kindOf.value(type, -1);
        if (kind < 0)
            continue; // a host's
        Posted &document = m_documents[kind][row->intAt(firstKey + static_cast<int>(kind))];
        ++document.rows;
        document.quantity += quantity;
    }
}

} // namespace Tallymere
