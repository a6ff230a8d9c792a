#include "engine/database.h"

#include "engine/dialect.h"
#include "engine/error.h"

// Bringing the tables of a database to their layouts.

namespace Engine {

void Database::createTable(const TableLayout &layout)
{
    Connection &store = connection();
    Transaction transaction(store);
    const QStringList statements = store.dialect().createTable(layout);
    for (const QString &statement : statements)
        store.execute(statement);
    transaction.commit();
}

} // namespace Engine
