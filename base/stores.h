#pragma once

#include "engine/store/stores.h"

namespace Tallymere {

// SQLite files for local sessions, PostgreSQL for remote ones.
Engine::Stores bothStores();

} // namespace Tallymere
