#pragma once

#include "base/prompts.h"
#include "engine/store/database.h"
#include "engine/store/driver.h"
#include "engine/store/tablelocks.h"

#include <functional>
#include <QString>

// What the synchronizations of locations and of items with the host have in common.

namespace Tallymere {

struct HostSyncResult
{
    qint64 updated = 0; // rows that took new values of the host
    qint64 added = 0;
    QString notUpdated; // why the update could not be done, where a run goes on nevertheless
};

// Takes the table, so that others can neither change it nor add to it and nobody's edit is overwritten. While another
// user holds the table or edits one of its records: TableLocked or TableInUse with the text of the refusal, where "%1"
// becomes who that is.
void takeTable(Engine::TableLocks &locks, Engine::Database &database, const QString &table, const QString &refusal);

// A text of the host's row, no longer than the field it goes to; null stays null.
Engine::Value hostText(const Engine::Statement &row, int column, const Engine::TableLayout &layout,
                       QStringView field);

// Rows to add to a table whose key is counted.
struct NewRows
{
    QString statement; // with named parameters
    qint64 firstKey = 0;
    qint64 count = 0;
    std::function<void(Engine::Statement &, qint64 row)> bind; // in the order of the statement's parameters
    std::function<QString(qint64 row)> nameOf; // for messages: "Location 3 \"Ottawa\""
};

// Adds them one after the other. A failure keeps the rows before it and is raised as it is, with the row's name where
// it lies with the row. BadValue, and nothing added, when there are not so many keys left.
void addRows(Engine::Database &database, const NewRows &rows, Progress &progress);

} // namespace Tallymere
