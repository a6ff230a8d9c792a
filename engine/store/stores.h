#pragma once

#include <memory>

namespace Engine {

class Connection;
class Database;

// How the databases of a session are opened. The engine itself knows no store: whoever makes a session hands it these.
// Each throws as Database::connection() does.
struct Stores
{
    using Open = std::unique_ptr<Connection> (*)(const Database &database);

    Open local; // the file of a local session
    Open remote; // the database of a remote session, on its server
    std::unique_ptr<Connection> (*inMemory)();
};

} // namespace Engine
