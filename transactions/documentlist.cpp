#include "transactions/documentlist.h"

#include "engine/database.h"
#include "frame/shared/ruleerror.h"

using namespace Qt::StringLiterals;
using Engine::FieldType;

namespace Tallymere {

DocumentList::DocumentList(Engine::Database &database, const DocumentKind &kind, const QString &index)
    : m_kind(kind)
    , m_table(database, m_kind.headerTable)
{
    m_table.setIndex(index);
    m_table.recordName = [this] { return m_kind.titleOf(m_table); };
    m_table.addCalculated(u"Periodppyyyy"_s, FieldType::Text, 8, [](const Engine::DataSet &row) {
        return Engine::Value(row.text(u"GLPeriod") + u'/' + row.text(u"GLYear"));
    });
    m_table.addLookup(u"WarehouseName"_s, FieldType::Text, 50,
                      {u"WarehouseID"_s, u"Warehse"_s, u"WarehouseID"_s, u"WarehouseName"_s});
}

bool DocumentList::moveTo(int key) { return m_table.moveToKey({key}); }

void DocumentList::remove(Prompts &prompts)
{
    if (m_table.isEmpty())
        return;
    if (!prompts.confirm(Question::Confirm, deleteQuestion()))
        throw SilentAbort();
    if (m_table.boolean(u"Posted"))
        throw RuleError(postedRefusal());
    removeWithLines();
    m_table.flush();
}

void DocumentList::removeWithLines()
{
    // The lock of the edit keeps others out while the question whether the document may go is still open, and
    // reads the document anew.
    m_table.edit();
    const bool posted = m_table.boolean(u"Posted");
    m_table.cancel();
    if (posted)
        throw RuleError(postedRefusal());

    Engine::Connection &connection = m_table.database().connection();
    Engine::Transaction transaction(connection);
    // Claims the row within the transaction: it may have been posted since the edit was let go.
    const Engine::StatementPtr claim = connection.prepare(
        u"UPDATE %1 SET %2 = %2 WHERE %2 = ? AND Posted IS NOT TRUE"_s.arg(m_kind.headerTable, m_kind.keyField));
    claim->bindInt(0, currentKey());
    if (claim->execute() == 0)
        throw RuleError(postedRefusal());

    Engine::Table lines(m_table.database(), m_kind.lineTable);
    lines.open();
    lines.setRange({currentKey()}, {currentKey()});
    lines.removeAll();
    m_table.remove();
    transaction.commit();
}

} // namespace Tallymere
