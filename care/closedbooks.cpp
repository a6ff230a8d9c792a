#include "care/closedbooks.h"

#include "transactions/documents/documentkinds.h"

namespace Tallymere {

ClosedBooks::ClosedBooks(Engine::Database &database)
    : m_locks(database)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        for (const QString &name : kind->keyTables()) {
            Engine::Table &table = *m_tables.emplace_back(std::make_unique<Engine::Table>(database, name));
            table.exclusive = true;
            table.open();
        }
    }
    m_locks.take(balanceLock().table);
}

} // namespace Tallymere
