#pragma once

#include "engine/database.h"
#include "engine/money.h"
#include "engine/value.h"

#include <unordered_map>

namespace Tallymere {

// What a unit of an item costs that goes out of stock, by the costing method of its type: the weighted average, the
// standard cost, or nothing for other methods and for items that are not stocked or not there.
class UnitCosts
{
public:
    explicit UnitCosts(Engine::Database &database)
        : m_database(database)
    {
    }

    Engine::Money readNow(const Engine::Value &item); // as stored; throws EngineError
    Engine::Money
    of(const Engine::Value &item); // as read last, so that a list of lines costs no statement for each

private:
    Engine::Database &m_database;
    std::unordered_map<int, Engine::Money> m_costs;
};

} // namespace Tallymere
