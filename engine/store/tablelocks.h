#pragma once

#include "engine/store/attempts.h"

#include <QStringList>

namespace Engine {

class Database;
class LockManager;
class Session;

// Whole tables held for the life of the object: others neither write to them nor open them alone, reading goes on.
// They are given back in the order they were taken, which cannot fail.
class TableLocks
{
public:
    explicit TableLocks(Database &database);
    ~TableLocks();
    TableLocks(const TableLocks &) = delete;
    TableLocks &operator=(const TableLocks &) = delete;

    // Throws TableLocked or TableInUse, with the table's title and the holder if known, when the rule gives up. The
    // table need not exist: its name may stand for something else that only one can do at a time.
    void take(const QString &table, const Retry &retry = {});

private:
    void takeOnce(const QString &table);

    LockManager &m_locks;
    const Session &m_session;
    QStringList m_tables;
};

// Tables that are about to be opened beside others, as those of one screen: where the store is far away, they are asked for
// together. Held up to the end of the object. One that cannot be had says so when it is opened.
class OpenShares
{
public:
    OpenShares(Database &database, const QStringList &tables);
    ~OpenShares();
    OpenShares(const OpenShares &) = delete;
    OpenShares &operator=(const OpenShares &) = delete;

private:
    LockManager &m_locks;
    QStringList m_opened;
};

// For opening a table beside others: throws TableInUse when somebody holds it alone.
void openShared(LockManager &locks, const QString &table, const QString &title, bool isToBeDescribed = false);

// Throws TableLocked, with the holder if known.
[[noreturn]] void refuseTable(LockManager &locks, const QString &table, const QString &title);

} // namespace Engine
