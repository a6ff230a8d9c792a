#pragma once

#include "engine/store/driver.h"
#include "engine/values/money.h"

#include <optional>

namespace Tallymere {

// How a type of items is valued: ItemType.CostingMethod. None is whatever else is stored, too: what leaves stock costs
// nothing then (ItemCost), while what is in stock is worth the average (unitValue).
enum class CostingMethod {
    None = 0,
    Average = 1, // the item's weighted average cost
    Standard = 2, // its standard cost
};

CostingMethod costingMethodOf(qint64 stored);

// What a unit of an item in stock is worth: its standard cost where the method is that, and its average for any other.
Engine::Money unitValue(CostingMethod method, const Engine::Value &average, const Engine::Value &standard);
// What so much of it is worth, to the cent; nothing where that is beyond an amount of money.
std::optional<Engine::Money> stockValue(double quantity, CostingMethod method, const Engine::Value &average,
                                        const Engine::Value &standard);

// What a unit of an item costs that leaves stock.
struct ItemCost
{
    CostingMethod method = CostingMethod::None;
    Engine::Money cost; // 0 where it is missing

    // From three columns of a row, the first of which is given: CostingMethod, WgtAvgCost, StandardCost. Throws
    // AmountTooLarge for a cost that is no amount of money.
    static ItemCost fromRow(const Engine::Statement &row, int column);
};

} // namespace Tallymere
