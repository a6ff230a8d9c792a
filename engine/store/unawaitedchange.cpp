#include "engine/store/unawaitedchange.h"

#include "engine/store/database.h"

namespace Engine {

void changeUnawaited(Database &database, const std::function<StatementPtr(Connection &)> &bound)
{
    Connection &connection = database.connection();
    if (connection.sendsAhead() && !connection.inTransaction())
        bound(connection)->ask(); // and nobody takes the answer
    else
        database.write(bound);
}

} // namespace Engine
