#include "engine/postgresconnection.h"

using namespace Qt::StringLiterals;

namespace Engine {

qint64 PostgresConnection::repair(const TableLayout &table)
{
    execute("REINDEX TABLE "_L1 + m_dialect.name(table.name));
    return 0;
}

} // namespace Engine
