#include "transactions/kinds/receiptcost.h"

#include "base/rounding.h"

namespace Tallymere {

using Engine::Money;

namespace {

// Less than this in stock is nothing: an average over it would be noise.
constexpr double LeastStock = 0.000001;

Money valueOf(double quantity, Money cost, Money carried)
{
    return Money::fromLongDouble(static_cast<long double>(quantity) * cost.toLongDouble() + carried.toLongDouble());
}

} // namespace

Money lineCost(Money unitCost, double exchangeRate)
{
    if (exchangeRate == 0.0 || exchangeRate == 1.0)
        return unitCost;
    return toCents(unitCost.toLongDouble() * static_cast<long double>(exchangeRate));
}

std::optional<Money> averageAfterReceipt(const ValuedStock &before, double received, Money cost)
{
    const bool hasValue = before.onHand > 0 && before.average > Money();
    const Money oldValue = hasValue ? valueOf(before.onHand, before.average, Money()) : Money();
    const Money newValue = valueOf(received, cost, oldValue);
    const double newQuantity = received + before.onHand;
    if (newQuantity <= LeastStock || newValue <= Money())
        return std::nullopt;
    return toCents(newValue.toLongDouble() / static_cast<long double>(newQuantity));
}

} // namespace Tallymere
