#include "transactions/kinds/receiptcost.h"

#include "engine/values/amounttoolarge.h"

#include <gtest/gtest.h>

using Engine::Money;
using namespace Tallymere;

namespace {

Money money(double value) { return Money::fromDouble(value); }

TEST(ReceiptCost, ConvertsLineCosts)
{
    // unit cost, rate, and what comes of them
    const std::tuple<const char *, double, double, double> cases[] = {
        {"a rate of 1 keeps four decimals", 1.2345, 1, 1.2345},
        {"no rate keeps four decimals", 1.2345, 0, 1.2345},
        {"a rate multiplies, to the cent", 1.2345, 0.75, 0.93},
        {"half a cent goes up", 0.005, 1.0000001, 0.01},
        {"a rate close to 1 is a rate", 1.2345, 1.0000001, 1.23},
        {"a negative rate", 2, -0.5, -1},
    };
    for (const auto &[name, unitCost, rate, expected] : cases)
        EXPECT_EQ(lineCost(money(unitCost), rate), money(expected)) << name;
}

TEST(ReceiptCost, AveragesOverStockAndReceipt)
{
    // average, on hand, received, its cost, and the average afterwards
    const std::tuple<const char *, double, double, double, double, std::optional<double>> cases[] = {
        {"worked example", 2.00, 10, 5, 3.00, 2.33},
        {"nothing on hand takes the cost to the cent", 0, 0, 3, 1.2366, 1.24},
        {"negative stock brings no value but counts", 4.00, -5, 10, 2.00, 4.00},
        {"stock without a cost brings no value but counts", 0, 10, 10, 3.00, 1.50},
        {"total of zero keeps the cost", 4.00, -10, 10, 2.00, std::nullopt},
        {"total below zero keeps the cost", 4.00, -10, 4, 2.00, std::nullopt},
        {"total of next to nothing keeps the cost", 0, 0, 0.000001, 2.00, std::nullopt},
        {"a little more than that does not", 0, 0, 0.0001, 2.00, 2.00},
        {"zero cost on zero stock keeps the cost", 5.00, 0, 10, 0, std::nullopt},
        {"zero cost on stock lowers the average", 2.00, 10, 10, 0, 1.00},
        {"a return of part of the stock", 2.00, 10, -5, 3.00, 1.00},
        {"a return worth more than the stock keeps the cost", 2.00, 10, -9, 3.00, std::nullopt},
        {"half a cent goes up", 1.00, 1, 1, 1.01, 1.01},
    };
    for (const auto &[name, average, onHand, received, cost, expected] : cases) {
        const auto after = averageAfterReceipt({money(average), onHand}, received, money(cost));
        ASSERT_EQ(after.has_value(), expected.has_value()) << name;
        EXPECT_EQ(after.value_or(Money()), money(expected.value_or(0))) << name;
    }
}

TEST(ReceiptCost, RefusesAmountsBeyondTheRangeOfMoney)
{
    EXPECT_THROW(averageAfterReceipt({money(1), 1}, 1e15, money(1000)), Engine::AmountTooLarge);
    EXPECT_THROW(lineCost(money(1e12), 1e6), Engine::AmountTooLarge);
}

} // namespace
