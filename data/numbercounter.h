#pragma once

#include "engine/records/table.h"
#include "engine/store/database.h"

#include <chrono>
#include <functional>
#include <memory>
#include <QString>
#include <QStringList>
#include <vector>

namespace Tallymere {

// Where keys that are counted begin.
inline constexpr qint64 firstCountedKey = 10'000;

// Between these lie the numbers that users see when a counter gives them.
inline constexpr qint64 firstNumber = 1001;
inline constexpr qint64 lastNumber = 10'000'000;

// The row of a control table while numbers are taken from it; put into edit by the first of them. An empty counter reads as 0.
class CounterRow
{
public:
    explicit CounterRow(Engine::Table &table)
        : m_table(table)
    {
    }

    qint64 value(Engine::WholeNumberName field) const;
    void set(Engine::WholeNumberName field,
             qint64 value); // throws BadValue, naming what is counted, at the end of its numbers

    // Hands out the field's number and moves the field on by one.
    qint64 take(Engine::WholeNumberName field);
    // Asks whether takeKey() will find the next key used, along with the row; for a rule that does something else first, as
    // starting again when the field is zero.
    void expectKey(Engine::WholeNumberName field, const QString &keyField, const QStringList &tables,
                   qint64 restartWhenZero = 0);
    // The same for the key of a new record, passing over every key that a row of the tables has in the key field: a
    // counter may be behind them, as one that was restored or emptied is. The tables have an index that begins with it.
    qint64 takeKey(Engine::WholeNumberName field, const QString &keyField, const QStringList &tables);
    // Starts again at restart when the field lies outside lowest..highest.
    void restartOutside(Engine::WholeNumberName field, qint64 lowest, qint64 highest, qint64 restart);
    void restartWhenZero(Engine::WholeNumberName field, qint64 restart);

private:
    Engine::Table &m_table;
    Engine::StatementPtr m_use; // of the next key, as expected
};

using CounterRule = std::function<void(CounterRow &)>;

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
//         receipt = counters.take(Fields::NextInvReceiptID);
//         counters.restartOutside(Fields::NextInvReceiptNo, 1001, 10'000'000, 1001);
//         number = counters.take(Fields::NextInvReceiptNo);
//     });
//
// Throws EngineError with TableInUse when all attempts found the table held by another user, and any other
// EngineError at once.
void takeNumbers(Engine::Database &database, const QString &table, const CounterRule &rule,
                 CounterRetry retry = {});

// Where the entry of records gets its numbers: a control table and the rule that takes from it.
using NumberSource = std::function<void(const QString &table, const CounterRule &rule)>;
NumberSource numbersAtOnce(Engine::Database &database); // takeNumbers() for each record

// Control tables kept in hand while many records are made in one transaction: each is opened once, by the first
// take(), and written once, by save(). Otherwise a server keeps every version of the row until the transaction
// ends and looks through all of them for each number. What is not saved is dropped.
class HeldCounters
{
public:
    explicit HeldCounters(Engine::Database &database)
        : m_database(database)
    {
    }

    // Throws as takeNumbers() does.
    void take(const QString &table, const CounterRule &rule);
    void save();

private:
    Engine::Table &opened(const QString &table);

    Engine::Database &m_database;
    std::vector<std::unique_ptr<Engine::Table>> m_tables;
};

NumberSource heldNumbers(HeldCounters &counters);

} // namespace Tallymere
