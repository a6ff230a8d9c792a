#pragma once

#include "engine/store/answer.h"

#include <functional>
#include <map>
#include <optional>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <set>

namespace Engine {

// Who holds a lock, for messages. Empty texts where the store does not tell.
struct LockOwner
{
    QString user;
    QString host;
    QDateTime since; // when the lock was taken; null where that is not known

    QString description() const; // "anna on kitchen-2, since 14:05"
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
// All calls return at once: true when the lock is held now. Retrying is the caller's business (Attempts). Opens and
// table locks are counted: the store is asked only for the first of a kind and told only of the last. Giving back never
// fails; what a lost connection held has gone with it. Within a transaction, record and table locks that are given back
// are kept until it ends: before that nobody else sees what was written under them.
class LockManager
{
public:
    virtual ~LockManager() = default;

    // What is asked of the store (Statement::ask) right behind a lock, so that it travels with it and is answered under
    // it. Called each time the lock is asked for; never where it is held already or the store is at hand.
    using Along = std::function<void()>;

    // What is to be described next is described along with its lock.
    bool tryOpenShared(const QString &table, bool isToBeDescribed = false);
    void closeShared(const QString &table) noexcept;
    // Several at once, in one journey; each is to be described. Gives those that are held now and are to be closed; one that is
    // left out is open already, or tells by itself why it cannot be. None where the store is at hand.
    QStringList openSharedTogether(const QStringList &tables);
    bool tryOpenExclusive(const QString &table, bool isToBeDescribed = false);
    void closeExclusive(const QString &table) noexcept;

    // Keys are the row's primary key values; a table without primary key has the one key {0}.
    bool tryLockRecord(const QString &table, const QList<qint64> &key, const Along &along = {});
    void unlockRecord(const QString &table, const QList<qint64> &key) noexcept;
    bool holdsRecord(const QString &table, const QList<qint64> &key) const;

    // Whoever holds this record finds out by himself when the lock is lost; see RecordLock.
    void mayBeLost(const QString &table, const QList<qint64> &key);
    virtual bool areLost() const { return false; } // all of them, with the connection
    virtual int losses() const { return 0; } // how often a lost connection was made anew

    // Within a transaction: asks that nobody else locks the table up to its end. Where somebody has it, the answer is a
    // failure, by which the transaction fails. Null where the store is at hand; there a record lock does as well.
    virtual StatementPtr askShare(const QString &) { return {}; }

    bool tryLockTable(const QString &table);
    void unlockTable(const QString &table) noexcept;
    bool holdsTable(const QString &table) const;

    // Told by the connection.
    void transactionBegun() noexcept;
    void transactionEnded() noexcept;

    // Who holds the table lock, or else any record of the table; nullopt when nobody does or it cannot be told.
    virtual std::optional<LockOwner> ownerOf(const QString &table) = 0;
    // Who keeps the record from being locked: whoever has it, or the whole table.
    virtual std::optional<LockOwner> ownerOf(const QString &table, const QList<qint64> &key) = 0;
    // The same, travelling with what else is asked. Taken while the connection lives.
    virtual Answer<std::optional<LockOwner>> askOwnerOf(const QString &table, const QList<qint64> &key);
    QString holderOf(const QString &table); // in a message: " (anna on kitchen-2, since 14:05)", or nothing
    QString holderOf(const QString &table, const QList<qint64> &key);

protected:
    // Below this level tables are named in lower case, records by a number made of their key. Times are seconds since
    // 1970, so that machines in different zones mean the same.
    struct Held
    {
        int shared = 0;
        int exclusive = 0;
        int table = 0;
        qint64 tableSince = 0;
        std::map<qint64, qint64> records; // each with the time since when
        std::set<qint64> losable; // those of the records that may be lost
        std::set<qint64> dueRecords; // given back, and kept until the transaction ends
        bool tableIsDue = false; // likewise

        bool keepsOthersFromWriting() const { return table > 0 || !records.empty(); }
        bool isReliedOn() const { return table > 0 || exclusive > 0 || records.size() > losable.size(); }
    };
    const std::map<QString, Held> &everything() const { return m_held; }

    void loseRecords(); // those that may be lost are not held any more

    enum class OpenMode { None, Shared, Exclusive };
    // From one mode to the other; true when that was possible. Going down always is.
    virtual bool changeOpen(const QString &table, OpenMode from, OpenMode to, bool isToBeDescribed) = 0;
    virtual QStringList acquireShared(const QStringList &) { return {}; } // those of them that could be had
    virtual qint64 placeOf(const QString &table, const QList<qint64> &key) const = 0;
    struct Place
    {
        qint64 record;
        qint64 since;
        bool tableHeld;
        Along along{};
    };
    virtual bool acquireRecord(const QString &table, const Place &place) = 0;
    virtual void releaseRecord(const QString &table, const Place &place) noexcept = 0;
    virtual bool acquireTable(const QString &table, qint64 since) = 0;
    // The records stay locked.
    virtual void releaseTable(const QString &table, const Held &held) noexcept = 0;
    // Called when a table's record and table locks have become different ones.
    virtual void changed() noexcept { }

private:
    Held *find(const QString &name);
    void goDown(const QString &name, OpenMode from, OpenMode to) noexcept;
    void giveBackRecord(const QString &name, qint64 place) noexcept;
    void giveBackTable(const QString &name) noexcept;

    std::map<QString, Held> m_held; // a table stays in it when nothing of it is held any more
    bool m_inTransaction = false;
};

} // namespace Engine
