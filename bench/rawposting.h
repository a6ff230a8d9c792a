#pragma once

#include <QString>

// The row changes of posting by the stores' own client libraries, statement by statement: what our posting
// is measured against. Same rows, same order, nothing else.

enum class RawDocuments { Receipts, Usage, Adjustments };

// One transaction over everything, with the cache that posting uses.
void postRawSqlite(RawDocuments documents, const QString &file);
// A transaction for each document.
void postRawPostgres(RawDocuments documents, const QString &conninfo);
