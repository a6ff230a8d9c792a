#include "master/costing.h"

#include "base/rounding.h"
#include "engine/values/amounttoolarge.h"

namespace Tallymere {

using Engine::Money;
using Engine::Value;

CostingMethod costingMethodOf(qint64 stored)
{
    const auto method = static_cast<CostingMethod>(stored);
    return method == CostingMethod::Average || method == CostingMethod::Standard ? method : CostingMethod::None;
}

Money unitValue(CostingMethod method, const Value &average, const Value &standard)
{
    return (method == CostingMethod::Standard ? standard : average).toMoney();
}

std::optional<Money> stockValue(double quantity, CostingMethod method, const Value &average, const Value &standard)
{
    try {
        return amountOf(quantity, unitValue(method, average, standard));
    } catch (const Engine::AmountTooLarge &) {
        return std::nullopt;
    }
}

ItemCost ItemCost::fromRow(const Engine::Statement &row, int column)
{
    ItemCost cost{costingMethodOf(row.intAt(column)), {}};
    if (cost.method != CostingMethod::None)
        cost.cost = Money::fromDouble(row.doubleAt(column + static_cast<int>(cost.method)));
    return cost;
}

} // namespace Tallymere
