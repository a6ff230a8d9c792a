#include "master/costing.h"

namespace Tallymere {

CostingMethod costingMethodOf(qint64 stored)
{
    const auto method = static_cast<CostingMethod>(stored);
    return method == CostingMethod::Average || method == CostingMethod::Standard ? method : CostingMethod::None;
}

ItemCost ItemCost::fromRow(const Engine::Statement &row, int column)
{
    ItemCost cost{costingMethodOf(row.intAt(column)), {}};
    if (cost.method != CostingMethod::None)
        cost.cost = Engine::Money::fromDouble(row.doubleAt(column + static_cast<int>(cost.method)));
    return cost;
}

} // namespace Tallymere
