#pragma once

#include "engine/locks.h"

#include <map>
#include <set>

namespace Engine {

// What both stores' locks have in common: the counts of what this connection holds, so that it never conflicts with
// itself. The store is asked only for the first of a kind and told only of the last. Tables are named in lower case
// below this level, records by a number made of their key.
class CountedLocks : public LockManager
{
public:
    bool tryOpenShared(const QString &table) final;
    void closeShared(const QString &table) final;
    bool tryOpenExclusive(const QString &table) final;
    void closeExclusive(const QString &table) final;
    bool tryLockRecord(const QString &table, const QList<qint64> &key) final;
    void unlockRecord(const QString &table, const QList<qint64> &key) final;
    bool holdsRecord(const QString &table, const QList<qint64> &key) const final;
    void mayBeLost(const QString &table, const QList<qint64> &key) final;
    bool tryLockTable(const QString &table) final;
    void unlockTable(const QString &table) final;
    bool holdsTable(const QString &table) const final;

protected:
    struct Held
    {
        int shared = 0;
        int exclusive = 0;
        int table = 0;
        std::set<qint64> records;
        std::set<qint64> losable; // those of the records that may be lost

        bool isFree() const { return shared == 0 && exclusive == 0 && table == 0 && records.empty(); }
        bool keepsOthersFromWriting() const { return table > 0 || !records.empty(); }
        bool isReliedOn() const { return table > 0 || exclusive > 0 || records.size() > losable.size(); }
    };
    const std::map<QString, Held> &everything() const { return m_held; }

    void loseRecords(); // those that may be lost are not held any more

    enum class OpenMode { None, Shared, Exclusive };
    // From one mode to the other; true when that was possible. Going down always is.
    virtual bool changeOpen(const QString &table, OpenMode from, OpenMode to) = 0;
    virtual qint64 placeOf(const QString &table, const QList<qint64> &key) const = 0;
    virtual bool acquireRecord(const QString &table, qint64 place, bool tableHeld) = 0;
    virtual void releaseRecord(const QString &table, qint64 place, bool tableHeld) = 0;
    virtual bool acquireTable(const QString &table) = 0;
    // The records stay locked.
    virtual void releaseTable(const QString &table, const std::set<qint64> &records) = 0;
    // Called when a table's record and table locks have become different ones.
    virtual void changed() { }

private:
    Held *find(const QString &name);
    void settle(const QString &name); // forgets a table that nothing is held of

    std::map<QString, Held> m_held;
};

} // namespace Engine
