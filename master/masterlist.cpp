#include "master/masterlist.h"

#include "engine/database.h"
#include "engine/query.h"
#include "frame/shared/ruleerror.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

MasterList::MasterList(Engine::Database &database, const MasterKind &kind)
    : m_kind(kind)
    , m_table(database, kind.table)
{
    m_table.recordName = [this] { return m_kind.recordName(m_table); };
    if (m_kind.addFields)
        m_kind.addFields(m_table);
    setOrder(m_kind.orders.at(m_kind.firstOrder));
}

void MasterList::open()
{
    m_table.open();
    if (m_kind.formatFields)
        m_kind.formatFields(m_table);
}

bool MasterList::moveTo(int key) { return m_table.locate(m_kind.keyField, {key}); }

void MasterList::remove(Prompts &prompts)
{
    if (m_table.isEmpty())
        return;
    requireRemovable(prompts);
    // Waits for a user who is editing the record, and reads it anew, before others are kept from writing.
    m_table.edit();
    m_table.cancel();

    Engine::Transaction transaction(m_table.database().connection());
    refuseIfReferred();
    removeOwned();
    m_table.remove();
    transaction.commit();
    m_table.flush();
}

void MasterList::requireRemovable(Prompts &prompts) const
{
    if (m_kind.systemKeys > 0 && currentKey() <= m_kind.systemKeys) {
        prompts.warn(m_kind.systemRecord);
        throw SilentAbort();
    }
    if (!prompts.confirm(Question::Confirm, tr("Delete '%1'?").arg(m_kind.recordName(m_table))))
        throw SilentAbort();
}

void MasterList::refuseIfReferred() const
{
    for (const MasterKind::Refusal &refusal : m_kind.refusals) {
        if (!isReferredBy(refusal))
            continue;
        const QString opening = m_kind.undeletable.isEmpty() ? tr("Unable to delete '%1'...") : m_kind.undeletable;
        throw RuleError(opening.arg(m_kind.recordName(m_table)) + u'\n' + refusal.reason);
    }
}

// Field by field, so that each look-up goes by an index of its own.
bool MasterList::isReferredBy(const MasterKind::Refusal &refusal) const
{
    return std::any_of(refusal.fields.begin(), refusal.fields.end(), [&](const QString &field) {
        const QString sql = u"SELECT 1 FROM %1 WHERE %2 = ? LIMIT 1"_s.arg(refusal.table, field);
        return !Engine::singleValue(m_table.database(), sql, {currentKey()}).isNull();
    });
}

void MasterList::removeOwned() const
{
    for (const QString &name : m_kind.ownedTables) {
        Engine::Table rows(m_table.database(), name);
        rows.open();
        rows.setFilter(u"(%1 = %2)"_s.arg(m_kind.keyField).arg(currentKey()));
        rows.setFiltered(true);
        rows.removeAll();
    }
}

} // namespace Tallymere
