#pragma once

#include <functional>
#include <QStringList>

namespace Engine {

class Connection;

// The tables of a file all rows of which can be read, but not by all of their indexes: Database::repairTable loses nothing
// of them. A table of which an index knows more rows than it has itself is none of these. Reads everything; tells the
// step now and then. Of a server none are told.
QStringList tablesWithDamagedIndexes(Connection &store, const std::function<void()> &step);

} // namespace Engine
