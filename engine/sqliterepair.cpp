#include "engine/reservedwords.h"
#include "engine/sqliteconnection.h"

using namespace Qt::StringLiterals;

namespace Engine {

qint64 SqliteConnection::repair(const TableLayout &table)
{
    execute("REINDEX "_L1 + quoted(table.name));
    return 0;
}

} // namespace Engine
