#pragma once

#include "engine/store/driver.h"
#include "engine/store/lockmanager.h"
#include "engine/store/session.h"

namespace Engine {

// A lock on one record for the life of the object. Waits for it as the session says, then throws RecordLocked with
// what the record is called, or TableLocked with the table, and the holder; at once when the connection itself holds
// the record. Nothing to do for a connection that holds the whole table.
class RecordLock
{
public:
    // What becomes of a lock whose connection is lost. While one stands that its holder relies on blindly, a server is
    // not connected to again. Where the loss is noticed, the holder asks isLost() before he relies on it.
    enum class Loss { Unnoticed, Noticed };

    RecordLock(Connection &connection, const Session &session, QString table, QList<qint64> key,
               const QString &record, Loss loss = Loss::Unnoticed, const LockManager::Along &along = {});
    ~RecordLock();
    RecordLock(const RecordLock &) = delete;
    RecordLock &operator=(const RecordLock &) = delete;

    bool isLost() const;

    // A key that no record has. Locking it tells whether records may be written at all.
    static QList<qint64> anyKey();

private:
    [[noreturn]] void refuse(const QString &record, const QString &tableTitle);

    LockManager &m_locks;
    QString m_table;
    QList<qint64> m_key;
    bool m_held = false;
    int m_losses = 0; // of the connection, when the lock was taken
};

// What is said of a record that was deleted before it could be locked: "'1001: Flour' was deleted by another user."
QString recordGoneText(const QString &record);

} // namespace Engine
