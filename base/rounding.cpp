#include "base/rounding.h"

#include <cmath>

using Engine::Money;

namespace Tallymere {

namespace {

// Scaled values beyond this have no whole part in 64 bits, and noise below seven decimals cannot be taken out.
constexpr long double wholeLimit = 9223372036854775807.0L;

// To the nearest whole number, half away from zero; the halfway point is tested by adding a half, not by looking at
// the fraction, so that what the addition rounds counts as well.
long double nearestWhole(long double value)
{
    const long double whole = std::trunc(value);
    if (value > 0)
        return std::trunc(value + 0.5L) > whole ? whole + 1 : whole;
    return std::trunc(value - 0.5L) < whole ? whole - 1 : whole;
}

} // namespace

long double withoutNoise(long double value)
{
    constexpr long double scale = 10'000'000.0L;
    const long double scaled = value * scale;
    if (!(std::fabs(scaled) + 0.5L < wholeLimit))
        return value;
    return nearestWhole(scaled) / scale;
}

long double roundIt(long double value) { return nearestWhole(withoutNoise(value)); }

Money toCents(long double value) { return Money::fromLongDouble(roundIt(value * 100) / 100); }

Money amountOf(double quantity, Money unitCost)
{
    return toCents(static_cast<long double>(quantity) * unitCost.toLongDouble());
}

double toTenth(double value) { return static_cast<double>(roundIt(value * 10.0L) / 10); }

double roundedUp(double value) { return std::ceil(withoutNoise(value)); }

} // namespace Tallymere
