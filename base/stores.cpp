#include "base/stores.h"

#include "engine/postgres/store.h"
#include "engine/sqlite/store.h"

namespace Tallymere {

Engine::Stores bothStores() { return {Engine::openSqlite, Engine::openPostgres, Engine::openSqliteInMemory}; }

} // namespace Tallymere
