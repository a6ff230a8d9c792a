#pragma once

#include "engine/database.h"
#include "engine/table.h"

#include <chrono>
#include <functional>
#include <QString>

namespace Tallymere {

// The row of a control table while numbers are taken from it. An empty counter reads as 0.
class CounterRow
{
public:
    explicit CounterRow(Engine::Table &table)
        : m_table(table)
    {
    }

    qint64 value(QStringView field) const { return m_table.value(field).toInt64(); }
    void set(QStringView field, qint64 value) { m_table.set(field, value); }

    // Hands out the field's number and moves the field on by one.
    qint64 take(QStringView field);
    // Starts again at restart when the field lies outside lowest..highest.
    void restartOutside(QStringView field, qint64 lowest, qint64 highest, qint64 restart);
    void restartWhenZero(QStringView field, qint64 restart);

private:
    Engine::Table &m_table;
};

// How often, and with what pause, a control table is tried that another user holds.
struct CounterRetry
{
    int attempts = 150;
    std::chrono::milliseconds pause{10};
};

// Takes numbers from a one-row control table ("ItemCtl", "VendCtl", "ARInvCtl"): opens it exclusively, edits its
// row (making it when the table is empty), lets the rule take what it needs, saves, flushes and closes at once. Two
// users never get the same number. Numbers taken are used up, also when the rule throws.
//
//     takeNumbers(database, u"ItemCtl"_s, [&](CounterRow &counters) {
//         receipt = counters.take(u"NextInvReceiptID");
//         counters.restartOutside(u"NextInvReceiptNo", 1001, 10'000'000, 1001);
//         number = counters.take(u"NextInvReceiptNo");
//     });
//
// Throws EngineError with TableInUse when all attempts found the table held by another user, and any other
// EngineError at once.
void takeNumbers(Engine::Database &database, const QString &table, const std::function<void(CounterRow &)> &rule,
                 CounterRetry retry = {});

} // namespace Tallymere
