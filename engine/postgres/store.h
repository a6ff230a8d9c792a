#pragma once

#include <memory>

namespace Engine {

class Connection;
class Database;

// The database of a remote session, as the database says.
std::unique_ptr<Connection> openPostgres(const Database &database);

} // namespace Engine
