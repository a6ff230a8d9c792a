#pragma once

#include "frame/shared/prompts.h"
#include "tests/support/teststore.h"

#include <QStringList>

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

    struct Line
    {
        int item;
        double quantity;
        double unitCost;
    };
    // An unposted receipt of period 3/2026, numbered 1000 + id, with its lines from 1 on.
    void addReceipt(int id, int vendor, int warehouse, const QList<Line> &lines, const QString &order = {});
    void setStock(int item, int warehouse, double onHand, double averageCost);

    Engine::Value value(const QString &sql);
    double number(const QString &sql) { return value(sql).toDouble(); }
    QString text(const QString &sql) { return value(sql).toText(); }
    double onHand(int item, int warehouse);
    double averageCost(int item);
    // All rows of a statement, one text each: "1|2.5|abc", nulls empty.
    QStringList rows(const QString &sql);
};

// Answers as told, and remembers what was said.
class ScriptedPrompts final : public Tallymere::Prompts
{
public:
    QStringList said;
    bool ok = true; // to confirm()
    Tallymere::Answer answer = Tallymere::Answer::Yes;
    int retries = 0; // how often retry() is answered with Retry
    std::function<void()> onRetry;

    void inform(const QString &text) override { said.append(text); }
    void warn(const QString &text) override { said.append(text); }
    void error(const QString &text) override { said.append(text); }
    bool confirm(Tallymere::Question question, const QString &text) override;
    Tallymere::Answer yesNoCancel(const QString &text) override;
    bool retry(const QString &text) override;
};

class CountedProgress final : public Tallymere::Progress
{
public:
    int expected = 0;
    int steps = 0;
    bool finished = false;

    void start(int count) override { expected = count; }
    void step() override { ++steps; }
    void finish() override { finished = true; }
};

inline const auto bothStores = testing::Values(Store::Local, Store::Remote);
inline std::string nameOfStore(const testing::TestParamInfo<Store> &info) { return storeName(info.param); }
