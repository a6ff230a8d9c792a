#include "transactions/counting/lastcounted.h"

#include "engine/store/database.h"
#include "engine/store/groupedwrites.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Calls write with a statement for each item that has been counted.
template <typename Write>
void forCounted(Engine::Database &database, const CountList &list, int location, QDate date, Write write)
{
    const Engine::StatementPtr remember = database.connection().prepare(
        u"INSERT INTO ICounted (ItemID, WarehouseID, CountDate) VALUES (?, ?, ?) "
        "ON CONFLICT (ItemID, WarehouseID) DO UPDATE SET CountDate = excluded.CountDate "
        "WHERE ICounted.CountDate < excluded.CountDate"_s);
    for (int i = 0; i < list.size(); ++i) {
        if (!list.row(i).typed)
            continue;
        remember->bindInt(0, list.row(i).itemId);
        remember->bindInt(1, location);
        remember->bind(2, Engine::Value(date));
        write(*remember);
    }
}

} // namespace

void rememberCounted(Engine::Database &database, const CountList &list, int location, QDate date)
{
    database.change([&] {
        forCounted(database, list, location, date, [](Engine::Statement &remember) {
            remember.execute();
            remember.reset();
        });
    });
}

void rememberCounted(Engine::Database &database, const CountList &list, int location, QDate date,
                     Engine::Writes &writes)
{
    forCounted(database, list, location, date, [&](Engine::Statement &remember) { writes.send(remember); });
}

} // namespace Tallymere
