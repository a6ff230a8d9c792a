#pragma once

#include "engine/records/table.h"
#include "tests/support/teststore.h"

struct TableUser
{
    std::unique_ptr<TestUser> user;
};

// A table that another user, anna, has open.
class TheirTable final : private TableUser, public Engine::Table
{
public:
    TheirTable(TestStore &store, const QString &name)
        : TableUser{store.anotherUser()}
        , Table(user->database, name)
    {
        open();
    }
};
