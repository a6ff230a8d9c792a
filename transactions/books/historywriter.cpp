#include "transactions/books/historywriter.h"

#include "engine/store/groupedwrites.h"
#include "transactions/books/postingkind.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

HistoryWriter::HistoryWriter(Engine::Connection &connection, const QString &keyField, TransType transType)
    : m_insert(connection.prepare(
        u"INSERT INTO IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, UnitCost, "
        "TransDescription, %1) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s.arg(keyField)))
    , m_transType(transType)
{
}

void HistoryWriter::append(const PostingDocument &document, const Engine::Value &item, double quantity,
                           std::optional<Engine::Money> unitCost, Engine::Writes &writes)
{
    m_insert->bind(0, item);
    m_insert->bind(1, document.warehouse);
    m_insert->bind(2, document.year);
    m_insert->bind(3, document.period);
    m_insert->bindInt(4, static_cast<int>(m_transType));
    m_insert->bind(5, document.date);
    m_insert->bindDouble(6, quantity);
    if (unitCost)
        m_insert->bindDouble(7, unitCost->toDouble());
    else
        m_insert->bindNull(7);
    m_insert->bindText(8, document.description);
    m_insert->bindInt(9, document.key);
    writes.send(*m_insert);
}

} // namespace Tallymere
