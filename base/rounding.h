#pragma once

#include "engine/values/money.h"

// How figures are rounded. Nothing else rounds.

namespace Tallymere {

// The rounding rule: to a whole number, half away from zero, after noise below seven decimals has been taken out
// (2.4999999996 counts as 2.5 and gives 3). Scale before and after the call for other precisions.
long double roundIt(long double value);
// The first half of that rule: to seven decimals. Sums and differences of quantities have noise beyond them.
long double withoutNoise(long double value);
inline double withoutNoise(double value)
{
    return static_cast<double>(withoutNoise(static_cast<long double>(value)));
}

// roundIt(value x 100) / 100 as money: an amount to the cent. Throws AmountTooLarge.
Engine::Money toCents(long double value);
// What a quantity comes to at a cost of one.
Engine::Money amountOf(double quantity, Engine::Money unitCost);

// Of estimates, as what is used in a week: to one decimal by roundIt, and up to a whole number, without noise first.
double toTenth(double value);
double roundedUp(double value);

} // namespace Tallymere
