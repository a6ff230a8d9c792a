#include "engine/store/recordlock.h"

#include "engine/store/attempts.h"
#include "engine/store/tablelocks.h"
#include "engine/values/error.h"

#include <QRandomGenerator>

namespace Engine {

RecordLock::RecordLock(Connection &connection, const Session &session, QString table, QList<qint64> key,
                       const QString &record, Loss loss, const LockManager::Along &along)
    : m_locks(connection.locks())
    , m_table(std::move(table))
    , m_key(std::move(key))
{
    if (m_locks.holdsTable(m_table))
        return;
    if (m_locks.holdsRecord(m_table, m_key)) {
        // The user himself; waiting would not help.
        raise(ErrorCode::RecordLocked,
              Texts::tr("%1 is being edited in another window. Finish there first.").arg(record));
    }
    Attempts attempts(session);
    while (!m_locks.tryLockRecord(m_table, m_key, along)) {
        if (!attempts.again())
            refuse(record, session.titleOf(m_table));
    }
    m_held = true;
    m_losses = m_locks.losses();
    if (loss == Loss::Noticed)
        m_locks.mayBeLost(m_table, m_key);
}

RecordLock::~RecordLock()
{
    // After a loss the record may be locked again, by another edit.
    if (m_held && m_losses == m_locks.losses())
        m_locks.unlockRecord(m_table, m_key);
}

bool RecordLock::isLost() const { return m_held && (m_locks.areLost() || m_losses != m_locks.losses()); }

QList<qint64> RecordLock::anyKey()
{
    const auto bits = QRandomGenerator::global()->generate64() >> 2;
    return {-static_cast<qint64>(bits) - 1};
}

void RecordLock::refuse(const QString &record, const QString &tableTitle)
{
    const QList<qint64> probe = anyKey();
    if (!m_locks.tryLockRecord(m_table, probe))
        refuseTable(m_locks, m_table, tableTitle);
    m_locks.unlockRecord(m_table, probe);
    raise(ErrorCode::RecordLocked,
          Texts::tr("%1 is being edited by another user%2. Try again in a moment.")
              .arg(record, m_locks.holderOf(m_table, m_key)));
}

QString recordGoneText(const QString &record) { return Texts::tr("%1 was deleted by another user.").arg(record); }

} // namespace Engine
