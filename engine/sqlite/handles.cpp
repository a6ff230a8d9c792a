#include "engine/sqlite/handles.h"

#include <sqlite3.h>

namespace Engine {

void CloseSqlite::operator()(sqlite3 *db) const { sqlite3_close_v2(db); }

void CloseSqlite::operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }

} // namespace Engine
