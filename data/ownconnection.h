#pragma once

#include "engine/store/database.h"
#include "engine/store/session.h"

namespace Tallymere {

// The database of another connection, over one of its own, for work on a thread of its own. To be made where the other one
// is used, which is connected by that; from then on the two know nothing of each other, and see each other's locks as two
// users would. Nothing of the screens stays alive while it waits for locks.
class OwnConnection
{
public:
    explicit OwnConnection(Engine::Database &other);

    Engine::Database &database() { return m_database; } // connects at the first use, on the thread of that

private:
    Engine::Session m_session;
    Engine::Database m_database;
};

} // namespace Tallymere
