#include "data/numbercounter.h"

#include "engine/attempts.h"
#include "engine/error.h"
#include "engine/session.h"

using Engine::EngineError;
using Engine::ErrorCode;
using Engine::Table;

namespace Tallymere {

namespace {

void openExclusively(Table &counters, CounterRetry retry)
{
    counters.exclusive = true;
    Engine::Attempts attempts(retry.attempts, [&] { counters.database().session().pause(retry.pause); });
    Engine::tryWhileHeld(
        [&] { counters.open(); },
        [&](const EngineError &error) { return error.code() == ErrorCode::TableInUse && attempts.again(); });
}

void save(Table &counters)
{
    if (counters.isEditing())
        counters.post();
    counters.flush();
    counters.close();
}

} // namespace

qint64 CounterRow::take(QStringView field)
{
    const qint64 number = value(field);
    set(field, number + 1);
    return number;
}

void CounterRow::restartOutside(QStringView field, qint64 lowest, qint64 highest, qint64 restart)
{
    if (const qint64 number = value(field); number < lowest || number > highest)
        set(field, restart);
}

void CounterRow::restartWhenZero(QStringView field, qint64 restart)
{
    if (value(field) == 0)
        set(field, restart);
}

void takeNumbers(Engine::Database &database, const QString &table, const CounterRule &rule, CounterRetry retry)
{
    Table counters(database, table);
    openExclusively(counters, retry);
    counters.edit();
    CounterRow row(counters);
    try {
        rule(row);
    } catch (...) {
        // What has been taken may be in use already, so it must not be handed out again.
        save(counters);
        throw;
    }
    save(counters);
}

NumberSource numbersAtOnce(Engine::Database &database)
{
    return [&database](const QString &table, const CounterRule &rule) { takeNumbers(database, table, rule); };
}

void HeldCounters::take(const QString &table, const CounterRule &rule)
{
    CounterRow row(opened(table));
    rule(row);
}

Engine::Table &HeldCounters::opened(const QString &table)
{
    for (const auto &held : m_tables) {
        if (held->name() == table)
            return *held;
    }
    auto counters = std::make_unique<Table>(m_database, table);
    openExclusively(*counters, {});
    counters->edit();
    return *m_tables.emplace_back(std::move(counters));
}

void HeldCounters::save()
{
    for (const auto &held : m_tables)
        Tallymere::save(*held);
    m_tables.clear();
}

NumberSource heldNumbers(HeldCounters &counters)
{
    return [&counters](const QString &table, const CounterRule &rule) { counters.take(table, rule); };
}

} // namespace Tallymere
