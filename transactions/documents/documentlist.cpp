#include "transactions/documents/documentlist.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "data/fields.h"
#include "engine/store/database.h"
#include "engine/values/linetext.h"
#include "transactions/books/periodfield.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Tallymere {

DocumentList::DocumentList(Engine::Database &database, const DocumentKind &kind)
    : RecordList(database, kind.headerTable, kind.keyField)
    , m_kind(kind)
{
    table().recordName = [this] { return m_kind.titleOf(table()); };
    setOrder(m_kind.list.orders.constFirst());
    addPeriod(table());
    table().addLookup(Fields::WarehouseName.sized(50),
                      {Fields::WarehouseID, u"Warehse"_s, Fields::WarehouseID, Fields::WarehouseName});
    if (m_kind.list.addFields)
        m_kind.list.addFields(table());
}

void DocumentList::open()
{
    table().open();
    table().field(m_kind.dateField).format = dateFormat();
}

void DocumentList::find(const QString &number)
{
    if (number.isEmpty() || table().locate(*m_kind.numberField, {number}))
        return;
    throw RuleError(m_kind.list.find->notFound.arg(Engine::excerpt(number)), *m_kind.numberField);
}

// --- deleting ---------------------------------------------------------------------------------------------------

QString DocumentList::name() const { return table().text(m_kind.list.deleting.nameField); }

QString DocumentList::postedText() const { return m_kind.list.deleting.posted.arg(name()); }

void DocumentList::refuseIfPosted(const QString &refusal) const
{
    if (table().boolean(Fields::Posted))
        throw RuleError(refusal);
}

void DocumentList::remove(Prompts &prompts)
{
    const DocumentKind::Deleting &deleting = m_kind.list.deleting;
    if (table().isEmpty())
        return;
    if (deleting.postedBeforeAsking)
        refuseIfPosted(*deleting.postedBeforeAsking);
    if (!prompts.confirm(deleting.asks, deleting.question.arg(name())))
        throw SilentAbort();
    refuseIfPosted(postedText());
    removeWithLines();
    table().flush();
}

// From the look at the document to the end of its deletion nobody else may come to edit or post it.
void DocumentList::removeWithLines()
{
    holdUnposted();
    const auto letGo = qScopeGuard([this] { table().cancel(); });
    if (removeUnposted())
        return;
    table().cancel();
    holdUnposted(); // deleted or posted by somebody who does not ask our locks, or since the connection was lost
    throw RuleError(postedText());
}

// The edit keeps others out and reads the document anew; one that is gone it refuses itself.
void DocumentList::holdUnposted()
{
    table().edit();
    if (!table().boolean(Fields::Posted))
        return;
    table().cancel();
    throw RuleError(postedText());
}

bool DocumentList::removeUnposted()
{
    Engine::Connection &connection = table().database().connection();
    Engine::Transaction transaction(connection);
    table().cancel(); // its lock is kept until the transaction ends
    const Engine::StatementPtr claim = connection.prepare(
        u"UPDATE %1 SET %2 = %2 WHERE %2 = ? AND Posted IS NOT TRUE"_s.arg(m_kind.headerTable, m_kind.keyField));
    claim->bindInt(0, currentKey());
    if (claim->execute() == 0)
        return false;

    Engine::Table lines(table().database(), m_kind.lineTable);
    lines.open();
    lines.setRange({currentKey()}, {currentKey()});
    lines.removeAll();
    table().remove();
    transaction.commit();
    return true;
}

} // namespace Tallymere
