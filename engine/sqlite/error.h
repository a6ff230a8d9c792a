#pragma once

#include "engine/values/error.h"

struct sqlite3;

namespace Engine {

// The error that SQLite reports last on the connection, in the engine's terms. The path names the file in messages.
EngineError sqliteError(sqlite3 *db, int resultCode, const QString &path);

} // namespace Engine
