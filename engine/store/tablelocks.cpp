#include "engine/store/tablelocks.h"

#include "engine/store/database.h"
#include "engine/store/lockmanager.h"
#include "engine/store/session.h"
#include "engine/values/error.h"

#include <QScopeGuard>

namespace Engine {

void openShared(LockManager &locks, const QString &table, const QString &title, bool isToBeDescribed)
{
    if (locks.tryOpenShared(table, isToBeDescribed))
        return;
    raise(ErrorCode::TableInUse,
          Texts::tr("Another user%2 has table '%1' open in exclusive mode.").arg(title, locks.holderOf(table)));
}

void refuseTable(LockManager &locks, const QString &table, const QString &title)
{
    raise(ErrorCode::TableLocked,
          Texts::tr("Table '%1' is locked by another user%2. Try again in a moment.")
              .arg(title, locks.holderOf(table)));
}

OpenShares::OpenShares(Database &database, const QStringList &tables)
    : m_locks(database.connection().locks())
    , m_opened(m_locks.openSharedTogether(tables))
{
}

OpenShares::~OpenShares()
{
    for (const QString &table : std::as_const(m_opened))
        m_locks.closeShared(table);
}

TableLocks::TableLocks(Database &database)
    : m_locks(database.connection().locks())
    , m_session(database.session())
{
}

TableLocks::~TableLocks()
{
    for (const QString &table : std::as_const(m_tables)) {
        m_locks.unlockTable(table);
        m_locks.closeShared(table);
    }
}

void TableLocks::take(const QString &table, const Retry &retry)
{
    tryWhileHeld([&] { takeOnce(table); }, retry);
}

void TableLocks::takeOnce(const QString &table)
{
    openShared(m_locks, table, m_session.titleOf(table));
    auto undo = qScopeGuard([&] { m_locks.closeShared(table); });
    if (!m_locks.tryLockTable(table))
        refuseTable(m_locks, table, m_session.titleOf(table));
    m_tables.append(table);
    undo.dismiss();
}

} // namespace Engine
