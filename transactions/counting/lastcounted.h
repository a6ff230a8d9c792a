#pragma once

#include "transactions/counting/countlist.h"

#include <QDate>

namespace Engine {
class Database;
class Writes;
} // namespace Engine

namespace Tallymere {

// When an item has been counted last at a location, whether the count has found a difference or not: a usage document
// tells only of items that differed. Not known of counts from before this was kept. A count of an earlier day that comes
// later changes nothing.
void rememberCounted(Engine::Database &database, const CountList &list, int location, QDate date);
void rememberCounted(Engine::Database &database, const CountList &list, int location, QDate date,
                     Engine::Writes &writes);

} // namespace Tallymere
