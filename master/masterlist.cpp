#include "master/masterlist.h"

#include "base/ruleerror.h"
#include "engine/records/query.h"
#include "engine/store/database.h"
#include "master/texts.h"

#include <algorithm>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Tallymere {

MasterList::MasterList(Engine::Database &database, const MasterKind &kind)
    : RecordList(database, kind.table, kind.keyField)
    , m_kind(kind)
{
    table().recordName = [this] { return m_kind.recordName(table()); };
    if (m_kind.addFields)
        m_kind.addFields(table());
    setOrder(m_kind.list.orders.at(m_kind.list.firstOrder));
}

void MasterList::open()
{
    table().open();
    if (m_kind.formatFields)
        m_kind.formatFields(table());
}

void MasterList::remove(Prompts &prompts)
{
    if (table().isEmpty())
        return;
    requireRemovable(prompts);
    // Waits for a user who is editing the record, and reads it anew, before others are kept from writing.
    table().edit();
    const auto letGo = qScopeGuard([this] { table().cancel(); });
    Engine::Transaction transaction(table().database().connection());
    table().cancel(); // its lock is kept until the transaction ends
    refuseIfReferred();
    removeOwned();
    table().remove();
    transaction.commit();
    table().flush();
}

void MasterList::requireRemovable(Prompts &prompts) const
{
    if (m_kind.list.systemKeys > 0 && currentKey() <= m_kind.list.systemKeys) {
        prompts.warn(m_kind.list.systemRecord);
        throw SilentAbort();
    }
    if (!prompts.confirm(Question::Confirm, MasterTexts::tr("Delete '%1'?").arg(currentName())))
        throw SilentAbort();
}

void MasterList::refuseIfReferred() const
{
    for (const MasterKind::Refusal &refusal : m_kind.list.refusals) {
        if (!isReferredBy(refusal))
            continue;
        const QString opening = m_kind.list.undeletable.isEmpty() ? MasterTexts::tr("Unable to delete '%1'...")
                                                                  : m_kind.list.undeletable;
        throw RuleError(opening.arg(currentName()) + u'\n' + refusal.reason);
    }
}

// Field by field, so that each look-up goes by an index of its own.
bool MasterList::isReferredBy(const MasterKind::Refusal &refusal) const
{
    return std::any_of(refusal.fields.begin(), refusal.fields.end(), [&](const QString &field) {
        const QString sql = u"SELECT 1 FROM %1 WHERE %2 = ? LIMIT 1"_s.arg(refusal.table, field);
        return !Engine::singleValue(table().database(), sql, {currentKey()}).isNull();
    });
}

void MasterList::removeOwned() const
{
    for (const QString &name : m_kind.list.ownedTables) {
        Engine::Table rows(table().database(), name);
        rows.open();
        rows.setFilter(u"(%1 = %2)"_s.arg(m_kind.keyField).arg(currentKey()));
        rows.setFiltered(true);
        rows.removeAll();
    }
}

} // namespace Tallymere
