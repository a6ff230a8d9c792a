#pragma once

#include "engine/store/driver.h"

#include <functional>

namespace Engine {

class Database;

// A change that nobody waits for, as of a note that may be lacking: to a server it goes with what is asked next, and whether
// it has failed is not told. In a file, and within a transaction, it is a change like any other.
void changeUnawaited(Database &database, const std::function<StatementPtr(Connection &)> &bound);

} // namespace Engine
