#pragma once

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace Engine {

struct CloseSqlite
{
    void operator()(sqlite3 *db) const; // statements still held elsewhere keep it alive until they go
    void operator()(sqlite3_stmt *statement) const;
};
using SqliteHandle = std::unique_ptr<sqlite3, CloseSqlite>;
using SqliteStatementHandle = std::unique_ptr<sqlite3_stmt, CloseSqlite>;

} // namespace Engine
