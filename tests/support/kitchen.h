#pragma once

#include "data/layouts.h"
#include "engine/records/query.h"
#include "tests/support/bothstores.h"
#include "tests/support/spokenprompts.h"
#include "tests/support/theirtable.h"

// A small kitchen to receive goods in: the inventory tables with a few rows that the tests know by heart.
//
//   locations 1 "Office", 2 "Freezer"
//   currencies 1 (rate 1), 2 (rate 0.75), 3 (no rate)
//   vendors 1 "V1" and 2 "V2" by their currencies, 3 "V3" with currency 3, 4 "V4" suspended, 5 "V5" with none
//   items 1 "A10" "Apples", 2 "A11" "Bread", 3 "B1" "apricots", 4 "X9" "Yeast" suspended; types 1 "Food", 2 "Goods"
//   fiscal year 2026, no ranges, default period 3/2026
class Kitchen : public TestStore
{
public:
    explicit Kitchen(Store store);
    void makeHost(); // the host's tables as well

    struct Line
    {
        int item;
        double quantity;
        double unitCost;
    };
    // An unposted receipt of period 3/2026, numbered 1000 + id, with its lines from 1 on.
    void addReceipt(int id, int vendor, int warehouse, const QList<Line> &lines, const QString &order = {});
    void setStock(int item, int warehouse, double onHand, double averageCost);

    QStringList lines(int receipt); // as rows() of number, item, quantity and cost
    void expectNoLocks(); // of the tables that posting locks, by then or soon

    // The first column of the first row.
    template <typename... Values> Engine::Value value(const QString &sql, const Values &...values)
    {
        return Engine::singleValue(database(), filledIn(sql, values...));
    }
    template <typename... Values> double number(const QString &sql, const Values &...values)
    {
        return value(sql, values...).toDouble();
    }
    template <typename... Values> QString text(const QString &sql, const Values &...values)
    {
        return value(sql, values...).toText();
    }
    double onHand(int item, int warehouse);
    double averageCost(int item);
    QString balances(); // found() item, location and quantity
};

// A test over it, of what runs on both stores.
struct KitchenTest : testing::TestWithParam<Store>
{
    Kitchen kitchen{GetParam()};
    SpokenPrompts prompts;
    CountedProgress progress;
};
