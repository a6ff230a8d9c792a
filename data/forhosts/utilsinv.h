#pragma once

#include "data/tableowner.h"
#include "engine/records/query.h"
#include "engine/records/table.h"
#include "engine/store/database.h"

#include <QList>
#include <QObject>
#include <QString>

// For hosts and for modules of theirs, which may call these at any time; nothing here does. Texts that are no number
// throw RuleError.

namespace Tallymere {

// --- tables and queries -----------------------------------------------------------------------------------------

// The next number of a one-row counter table whose field holds the last number handed out: locks the row, adds one,
// saves. A table without a row gets one, from 0. Tries 100 times with short random breaks in which pending events are
// processed, then throws RuleError. Opens and closes the table.
int getUniqueID(Engine::Table &counter, const QString &field);

// Opens the table and returns true. A damaged table is mended with repairTable(), now or when its first read finds the
// damage, and used again. Other failures come as EngineError with the engine's code and a text that names the table; one
// held exclusively by another user says so.
bool openTable(Engine::TableReader &table);
// Verifies and mends a table; the rows that were lost. Where that is not possible, the EngineError says what to do.
qint64 repairTable(Engine::Database &database, const QString &table);
bool openQuery(Engine::Query &query);

// The stored statement of that name: field Query_Lines of the query's first row, its parameter Query_Name being the
// name. Empty when there is none.
QString getSQLString(Engine::Query &query, const QString &name);

// tables() of data/tableactions.h for those of a data module.
void dmTables(const QString &action, TableOwner &dataModule);

// Edits find out about locks when they begin; there is nothing to ask beforehand.
bool isRecordLocked(const Engine::TableReader &table);

// --- texts ------------------------------------------------------------------------------------------------------

// The key in square brackets: "15" of "Bread [15~2]". Reads four characters after the first "[", or the first four
// when there is none, and cuts at "~" and "]".
QString extractIDFromString(const QString &text);
// The part before the first marker; the whole text when it does not occur.
QString before(const QString &marker, const QString &text);
// ".125" of "3.1254": the point and up to three digits; empty without a point.
QString getDecimalPortionAsString(const QString &number);
QString getIntegerPortionAsString(const QString &number); // "0" when it is no whole number
int getIntegerPortionOfStringAsInteger(const QString &number);
// The default is not used: a text that is no number is an error.
double strToFloatDef(const QString &text, double unused);

// --- check lists ------------------------------------------------------------------------------------------------

// Bit i is set when entry i is checked; entries from 32 on share the bits of i modulo 32.
quint32 checkListGetBitField(const QList<bool> &checks);
void checkListSetChecks(QList<bool> &checks, quint32 bits);

} // namespace Tallymere
