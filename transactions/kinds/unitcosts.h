#pragma once

#include "engine/store/database.h"
#include "engine/values/money.h"
#include "engine/values/value.h"

#include <unordered_map>
#include <unordered_set>

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

    // As read last, so that a list of lines costs no statement for each; throws EngineError.
    Engine::Money of(const Engine::Value &item);
    Engine::Money chosen(const Engine::Value &item); // as stored now, unless it is held
    void hold(const Engine::Value &item); // what it costs stays, until all is forgotten
    void forget();

private:
    Engine::Money readNow(const Engine::Value &item);

    Engine::Database &m_database;
    std::unordered_map<int, Engine::Money> m_costs;
    std::unordered_set<int> m_held;
};

} // namespace Tallymere
