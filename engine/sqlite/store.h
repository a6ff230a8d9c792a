#pragma once

#include <memory>

namespace Engine {

class Connection;
class Database;

// The file of a local session, as the database says.
std::unique_ptr<Connection> openSqlite(const Database &database);
std::unique_ptr<Connection> openSqliteInMemory();

} // namespace Engine
