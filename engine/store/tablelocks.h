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

// For opening a table beside others: throws TableInUse when somebody holds it alone.
void openShared(LockManager &locks, const QString &table, const QString &title, bool isToBeDescribed = false);

// Throws TableLocked, with the holder if known.
[[noreturn]] void refuseTable(LockManager &locks, const QString &table, const QString &title);

} // namespace Engine
