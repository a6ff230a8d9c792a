#pragma once

#include <optional>
#include <QList>
#include <QString>
#include <QtGlobal>

namespace Engine {

// Who holds a lock, for messages. Empty texts where the store does not tell.
struct LockOwner
{
    QString user;
    QString host;
    qint64 processId = 0;

    QString description() const; // "anna on kitchen-2 (process 4711)"
};

// The locks of one connection. A connection never conflicts with itself, except that a record can be locked only
// once; another connection of the same process counts as another user. The end of the process, however it comes,
// frees its locks.
//
// Three kinds, for each table:
// - open: every open table holds it shared; an exclusive open holds it alone.
// - record: one holder for each row; held while the row is edited and for the moment of an insert or delete.
// - table: keeps others from locking records (and so from writing) and from locking the table; reading and opening
//   go on.
//
// All calls return at once: true when the lock is held now. Retrying is the caller's business.
class LockManager
{
public:
    virtual ~LockManager() = default;

    virtual bool tryOpenShared(const QString &table) = 0; // counted: pair with closeShared
    virtual void closeShared(const QString &table) = 0;
    virtual bool tryOpenExclusive(const QString &table) = 0;
    virtual void closeExclusive(const QString &table) = 0;

    // Keys are the row's primary key values; a table without primary key has the one key {0}.
    virtual bool tryLockRecord(const QString &table, const QList<qint64> &key) = 0;
    virtual void unlockRecord(const QString &table, const QList<qint64> &key) = 0;
    virtual bool holdsRecord(const QString &table, const QList<qint64> &key) const = 0;

    // Whoever holds this record finds out by himself when the lock is lost; see RecordLock.
    virtual void mayBeLost(const QString &table, const QList<qint64> &key) = 0;
    virtual bool areLost() const { return false; } // all of them, with the connection
    virtual int losses() const { return 0; } // how often a lost connection was made anew

    virtual bool tryLockTable(const QString &table) = 0;
    virtual void unlockTable(const QString &table) = 0;
    virtual bool holdsTable(const QString &table) const = 0;

    // Who holds the table lock, or else any record of the table; nullopt when nobody does or it cannot be told.
    virtual std::optional<LockOwner> ownerOf(const QString &table) = 0;
};

} // namespace Engine
