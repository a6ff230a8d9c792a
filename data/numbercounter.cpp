#include "data/numbercounter.h"

#include "data/fields.h"
#include "data/texts.h"
#include "engine/records/query.h"
#include "engine/store/attempts.h"
#include "engine/store/batchedrun.h"
#include "engine/store/session.h"
#include "engine/values/error.h"

#include <limits>
#include <utility>

using namespace Qt::StringLiterals;
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

Table &inEdit(Table &counters)
{
    counters.edit(); // nothing where it is already
    return counters;
}

void save(Table &counters)
{
    if (counters.isEditing())
        counters.post();
    counters.flush();
    counters.close();
}

bool isUsed(Engine::Database &database, qint64 key, const QString &keyField, const QStringList &tables)
{
    QStringList rows;
    for (const QString &table : tables)
        rows << u"SELECT 1 FROM %1 WHERE %2 = ?"_s.arg(table, keyField);
    const QList<Engine::Value> keys(tables.size(), key);
    return !Engine::singleValue(database, rows.join(" UNION ALL "_L1) + " LIMIT 1"_L1, keys).isNull();
}

// Whether the key that the counter gives is used, with that key: asked before the row of the counter is read, so that both
// travel together. There may be no row yet.
Engine::StatementPtr askUseOfNext(Table &counters, QStringView field, const QString &keyField,
                                  const QStringList &tables, qint64 restartWhenZero)
{
    QStringList uses;
    for (const QString &table : tables)
        uses << u"EXISTS (SELECT 1 FROM %1 WHERE %2 = N.NextKey)"_s.arg(table, keyField);
    Engine::StatementPtr row = counters.database().connection().prepare(
        u"SELECT N.NextKey, %1 FROM (SELECT COALESCE(NULLIF((SELECT %2 FROM %3 LIMIT 1), 0), CAST(? AS BIGINT)) "
        "AS NextKey) N"_s.arg(uses.join(" OR "_L1), field, counters.name()));
    row->bindInt(0, restartWhenZero);
    row->ask();
    return row;
}

bool tellsFree(Engine::Statement &use, qint64 key)
{
    return use.next() && use.intAt(0) == key && use.intAt(1) == 0;
}

// The end of the run of keys that a used one stands in. A counter may be a whole table behind: one statement goes along
// the index to the first gap.
qint64 behindRun(Engine::Database &database, qint64 used, const QString &keyField, const QString &table)
{
    const QString gap =
        u"SELECT CAST(T.%1 AS BIGINT) + 1 FROM %2 T WHERE T.%1 >= ? AND NOT EXISTS "
        "(SELECT 1 FROM %2 N WHERE N.%1 = CAST(T.%1 AS BIGINT) + 1) ORDER BY T.%1 LIMIT 1"_s.arg(keyField, table);
    return Engine::singleValue(database, gap, {used}).toInt64();
}

qint64 firstFree(Engine::Database &database, qint64 key, const QString &keyField, const QStringList &tables)
{
    while (isUsed(database, key, keyField, tables)) {
        for (const QString &table : tables) {
            if (isUsed(database, key, keyField, {table}))
                key = behindRun(database, key, keyField, table);
        }
    }
    return key;
}

// The next key from one on that a row has; 0: there is none.
qint64 nextUsed(Engine::Database &database, qint64 key, const QString &keyField, const QStringList &tables)
{
    qint64 next = 0;
    for (const QString &table : tables) {
        const qint64 used =
            Engine::singleValue(database, u"SELECT MIN(%1) FROM %2 WHERE %1 >= ?"_s.arg(keyField, table), {key})
                .toInt64();
        next = used > 0 && (next == 0 || used < next) ? used : next;
    }
    return next;
}

// Where nobody else writes to the tables, one look tells how far the keys are free.
qint64 firstFreeInRun(Engine::Database &database, qint64 key, const QString &keyField, const QStringList &tables)
{
    Engine::Connection &connection = database.connection();
    const Engine::RunValues::Gap known = Engine::RunValues::gap(connection, keyField);
    if (key >= known.from && key < known.to)
        return key;
    key = firstFree(database, key, keyField, tables);
    const qint64 end = nextUsed(database, key, keyField, tables);
    Engine::RunValues::setGap(connection, keyField, {key, end > 0 ? end : std::numeric_limits<qint64>::max()});
    return key;
}

// What a counter counts, as users know it.
QString countedBy(QStringView field)
{
    static const QHash<QString, QString> names{
        {Fields::NextItemNo, DataTexts::tr("item numbers")},
        {Fields::NextItemID, DataTexts::tr("keys of items")},
        {Fields::NextInvAdjustmentID, DataTexts::tr("keys of adjustments")},
        {Fields::NextInvReceiptID, DataTexts::tr("keys of receipts")},
        {Fields::NextInvReceiptNo, DataTexts::tr("receipt numbers")},
        {Fields::NextVendorNo, DataTexts::tr("vendor numbers")},
        {Fields::NextVendorID, DataTexts::tr("keys of vendors")},
        {Fields::NextInvoiceID, DataTexts::tr("keys of usages")},
        {Fields::NextInvoiceNo, DataTexts::tr("usage numbers")},
    };
    return names.value(field.toString(), field.toString());
}

} // namespace

void CounterRow::set(Engine::WholeNumberName field, qint64 value)
{
    constexpr qint64 largest = std::numeric_limits<qint32>::max();
    if (value > largest)
        Engine::raise(ErrorCode::BadValue,
                      DataTexts::tr("The %1 have come to their end: none can be given from %2 on.")
                          .arg(countedBy(field), QString::number(largest)));
    inEdit(m_table).set(field, value);
}

qint64 CounterRow::take(Engine::WholeNumberName field)
{
    const qint64 number = value(field);
    set(field, number + 1);
    return number;
}

qint64 CounterRow::value(Engine::WholeNumberName field) const { return inEdit(m_table).value(field).toInt64(); }

void CounterRow::expectKey(Engine::WholeNumberName field, const QString &keyField, const QStringList &tables,
                           qint64 restartWhenZero)
{
    const Engine::Connection &connection = m_table.database().connection();
    if (!m_use && !m_table.isEditing() && connection.sendsAhead() && !connection.isInRun())
        m_use = askUseOfNext(m_table, field, keyField, tables, restartWhenZero);
}

qint64 CounterRow::takeKey(Engine::WholeNumberName field, const QString &keyField, const QStringList &tables)
{
    expectKey(field, keyField, tables);
    const Engine::StatementPtr use = std::exchange(m_use, {});
    Engine::Database &database = m_table.database();
    qint64 key = value(field);
    const auto look = database.connection().isInRun() ? firstFreeInRun : firstFree;
    if (!use || !tellsFree(*use, key))
        key = look(database, key, keyField, tables);
    set(field, key + 1);
    return key;
}

void CounterRow::restartOutside(Engine::WholeNumberName field, qint64 lowest, qint64 highest, qint64 restart)
{
    if (const qint64 number = value(field); number < lowest || number > highest)
        set(field, restart);
}

void CounterRow::restartWhenZero(Engine::WholeNumberName field, qint64 restart)
{
    if (value(field) == 0)
        set(field, restart);
}

void takeNumbers(Engine::Database &database, const QString &table, const CounterRule &rule, CounterRetry retry)
{
    Table counters(database, table);
    openExclusively(counters, retry);
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
