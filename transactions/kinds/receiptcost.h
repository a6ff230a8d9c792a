#pragma once

#include "engine/values/money.h"

#include <optional>

namespace Tallymere {

// The arithmetic of receiving goods. Pure: no store. Costs and values have four decimals, quantities are in stock
// units. An amount beyond the range of Money throws AmountTooLarge.

struct ValuedStock
{
    Engine::Money average; // weighted average cost of a unit
    double onHand = 0; // over all locations
};

// A line's unit cost in the home currency. The rate multiplies and the result is rounded to the cent; a rate of
// exactly 0 or 1 means no conversion and keeps all four decimals.
Engine::Money lineCost(Engine::Money unitCost, double exchangeRate);

// The item's average cost, to the cent, after a quantity was received at a cost; nothing when the cost stays as it
// was. A stock or cost that is not above zero brings no value in, yet the quantity still counts.
std::optional<Engine::Money> averageAfterReceipt(const ValuedStock &before, double received, Engine::Money cost);

} // namespace Tallymere
