#pragma once

#include <QString>

// The row changes of receipt posting by the stores' own client libraries, statement by statement: what our posting
// is measured against. Same rows, same order, nothing else.

// One transaction over everything, with the cache that posting uses.
void postRawSqlite(const QString &file);
// A transaction for each document.
void postRawPostgres(const QString &conninfo);
