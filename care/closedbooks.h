#pragma once

#include "engine/records/table.h"
#include "engine/store/tablelocks.h"

#include <memory>
#include <vector>

namespace Tallymere {

// Nobody enters a document or posts one while it lives. Throws EngineError (TableInUse, TableLocked) when somebody does.
class ClosedBooks
{
public:
    explicit ClosedBooks(Engine::Database &database);

private:
    std::vector<std::unique_ptr<Engine::Table>> m_tables;
    Engine::TableLocks m_locks;
};

} // namespace Tallymere
