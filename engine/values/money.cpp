#include "engine/values/money.h"

#include "engine/values/amounttoolarge.h"

#include <cmath>

namespace Engine {

namespace {

// The whole number nearest to rounded + residual, ties to even. The residual is what the multiplication lost:
// without it a value just beside a tie would look like one.
long double nearestWhole(long double rounded, long double residual)
{
    const long double below = std::floor(rounded);
    const long double fraction = rounded - below;
    if (fraction < 0.5L || (fraction == 0.5L && residual < 0))
        return below;
    if (fraction > 0.5L || residual > 0)
        return below + 1;
    return std::fmod(below, 2.0L) == 0 ? below : below + 1;
}

} // namespace

void Money::refuse() { throw AmountTooLarge(); }

Money Money::fromLongDouble(long double value)
{
    if (!std::isfinite(value) || std::fabs(value) > static_cast<long double>(largestAmount))
        refuse();
    const long double product = value * 10000.0L;
    const long double residual = std::fma(value, 10000.0L, -product);
    return fromTenThousandths(static_cast<qint64>(nearestWhole(product, residual)));
}

} // namespace Engine
