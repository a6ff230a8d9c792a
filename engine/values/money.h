#pragma once

#include <QtGlobal> // first: moc cannot read what <compare> brings along otherwise

#include <compare>

namespace Engine {

// A currency amount with four decimals, kept as a count of 0.0001. All sums of money are done in this type.
//
// The stores keep money as a floating value, so there is a conversion at each border. It rounds to the nearest
// 0.0001, ties to even, judged on the exact binary value (0.00005 as a double lies above the tie and rounds up).
//
// Nothing wraps around: a conversion or a sum that leaves +-largestAmount throws AmountTooLarge (amounttoolarge.h).
class Money
{
public:
    static constexpr qint64 largestAmount = 922'337'203'685'477;

    constexpr Money() = default;

    static Money fromDouble(double value) { return fromLongDouble(value); }
    static Money fromLongDouble(long double value);
    static constexpr Money fromTenThousandths(qint64 count)
    {
        Money money;
        money.m_count = count;
        return money;
    }

    constexpr qint64 tenThousandths() const { return m_count; }
    constexpr double toDouble() const { return static_cast<double>(toLongDouble()); } // rounded once
    constexpr long double toLongDouble() const { return static_cast<long double>(m_count) / 10000.0L; }

    constexpr Money operator-() const { return Money() - *this; }
    friend constexpr Money operator+(Money a, Money b)
    {
        if (b.m_count > 0 ? a.m_count > mostCount - b.m_count : a.m_count < -mostCount - b.m_count)
            refuse();
        return fromTenThousandths(a.m_count + b.m_count);
    }
    friend constexpr Money operator-(Money a, Money b)
    {
        if (b.m_count < 0 ? a.m_count > mostCount + b.m_count : a.m_count < -mostCount + b.m_count)
            refuse();
        return fromTenThousandths(a.m_count - b.m_count);
    }
    constexpr auto operator<=>(const Money &) const = default;

private:
    static constexpr qint64 mostCount = largestAmount * 10'000;

    [[noreturn]] static void refuse();

    qint64 m_count = 0;
};

} // namespace Engine
