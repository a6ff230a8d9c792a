#include "engine/records/setparts.h"

#include "engine/store/dialect.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

void append(KeyList &keys, const KeyList &others)
{
    for (int i = 0; i < others.count(); ++i)
        keys.append(others.at(i).front());
}

} // namespace

SetParts::SetParts(Connection &connection, const SetScope &scope)
    : m_connection(connection)
    , m_scope(scope)
    , m_rows(scope.groups ? scope.groups->rows : scope.source)
    , m_key(scope.keyColumns.constFirst())
{
}

StatementPtr SetParts::select(const QString &columns, const SqlCondition &condition, const QString &tail) const
{
    SqlCondition all = m_scope.condition;
    all += condition;
    StatementPtr statement =
        m_connection.prepare(u"SELECT %1 FROM %2 WHERE %3%4"_s.arg(columns, m_scope.source, all.text, tail));
    bindAll(*statement, all.parameters);
    return statement;
}

QString SetParts::orderBy(bool backwards) const
{
    return Engine::orderBy(m_connection.dialect(), m_scope.order, backwards);
}

// A file that may choose would walk through the table by its key, where the index has the rows of one group in their order.
SqlCondition SetParts::upTo(qint64 lastKey) const
{
    const bool isOfGroups = m_scope.groups || !m_scope.condition.isEmpty();
    const QString notByKey = isOfGroups ? m_connection.dialect().variant(u"+"_s, QString()) : QString();
    return {notByKey + m_key + " <= ?"_L1, {lastKey}};
}

// --- how long it is -----------------------------------------------------------------------------------------------

std::optional<SetLength> SetParts::length(int shortOnes) const
{
    const std::optional<qint64> last = lastKey(shortOnes);
    if (!last || m_scope.groups)
        return last ? std::optional(lengthUpTo(*last)) : std::nullopt;
    // Both of one moment.
    const StatementPtr statement =
        m_connection.prepare(u"SELECT (SELECT COUNT(*) FROM %1), (SELECT MAX(%2) FROM %1)"_s.arg(m_rows, m_key));
    statement->next();
    return SetLength{static_cast<int>(statement->intAt(0)), statement->intAt(1)};
}

std::optional<qint64> SetParts::lastKey(int shortOnes) const
{
    if (!m_scope.inParts)
        return std::nullopt;
    const StatementPtr statement =
        m_connection.prepare(u"SELECT MAX(%2) FROM %1 WHERE EXISTS (SELECT 1 FROM %1 LIMIT 1 OFFSET %3)"_s.arg(
            m_rows, m_key, QString::number(shortOnes)));
    if (!statement->next() || statement->isNull(0))
        return std::nullopt;
    return statement->intAt(0);
}

SetLength SetParts::lengthUpTo(qint64 lastKey) const
{
    const StatementPtr highest = m_connection.prepare(
        u"SELECT MAX(%2) FROM %1 WHERE %2 <= %3"_s.arg(m_rows, m_key, QString::number(lastKey)));
    SetLength length{.lastKey = highest->next() && !highest->isNull(0) ? highest->intAt(0) : 0};
    if (m_scope.groups) {
        length.groups = groupsUpTo(lastKey);
        for (SetLength::Group &group : length.groups)
            group.first = std::exchange(length.count, length.count + group.count);
        return length;
    }
    const StatementPtr count = select(u"COUNT(*)"_s, upTo(lastKey));
    count->next();
    length.count = static_cast<int>(count->intAt(0));
    return length;
}

// The other table is joined to a row for each group.
std::vector<SetLength::Group> SetParts::groupsUpTo(qint64 lastKey) const
{
    const SetScope::Groups &all = *m_scope.groups;
    const QString column = all.order.constFirst().column.sql;
    const SqlCondition rows = upTo(lastKey);
    const StatementPtr statement = m_connection.prepare(
        u"SELECT %1, t.rows_of_it FROM (SELECT %1, COUNT(*) AS rows_of_it FROM %2 WHERE %3 GROUP BY %1) t%4%5"_s
            .arg(column, m_rows, rows.text, m_scope.source.sliced(m_rows.size()),
                 Engine::orderBy(m_connection.dialect(),
                                 m_scope.order.first(m_scope.order.size() - all.order.size() + 1))));
    bindAll(*statement, rows.parameters);
    std::vector<SetLength::Group> groups;
    while (statement->next())
        groups.push_back({.key = statement->intAt(0),
                          .isOfNull = statement->isNull(0),
                          .count = static_cast<int>(statement->intAt(1))});
    return groups;
}

// --- its keys -----------------------------------------------------------------------------------------------------

KeyList SetParts::keysFrom(int first, int count, const SetLength &length) const
{
    if (m_scope.groups)
        return keysOfGroups(first, count, length);
    const int behind = length.count - first - count;
    const bool backwards = behind < first;
    const StatementPtr statement =
        select(m_key, upTo(length.lastKey),
               orderBy(backwards) + u" LIMIT %1 OFFSET %2"_s.arg(count).arg(backwards ? behind : first));
    std::vector<qint64> numbers;
    while (statement->next())
        numbers.push_back(statement->intAt(0));
    if (backwards)
        std::reverse(numbers.begin(), numbers.end());
    KeyList keys;
    for (const qint64 number : numbers)
        keys.append(number);
    return keys;
}

// Bounds in place of an equation, so that a server too goes by the index: see where the first rows are found.
SetParts SetParts::of(const SetLength::Group &group) const
{
    const SetScope::Groups &all = *m_scope.groups;
    const QString column = all.order.constFirst().column.sql;
    SetScope alone;
    alone.source = all.rows;
    alone.keyColumns = m_scope.keyColumns;
    alone.order = all.order;
    alone.condition = {column + " IS NULL"_L1, {}};
    if (!group.isOfNull)
        alone.condition = {u"%1 >= ? AND %1 <= ?"_s.arg(column), {group.key, group.key}};
    return {m_connection, alone};
}

// Those that are wanted whole come together; of the first and the last a piece may be wanted.
KeyList SetParts::keysOfGroups(int first, int count, const SetLength &length) const
{
    const QString column = m_scope.groups->order.constFirst().column.sql;
    KeyList keys;
    std::vector<qint64> whole;
    const auto takeWhole = [&] {
        if (whole.empty())
            return;
        std::sort(whole.begin(), whole.end());
        SqlCondition ofThese{m_connection.dialect().inNumberList(column), {numberList(std::exchange(whole, {}))}};
        ofThese += upTo(length.lastKey);
        const StatementPtr statement = select(m_key, ofThese, orderBy());
        while (statement->next())
            keys.append(statement->intAt(0));
    };
    const int end = first + count;
    const auto &groups = length.groups;
    auto group = std::prev(std::ranges::upper_bound(groups, first, {}, &SetLength::Group::first));
    for (; group != groups.end() && group->first < end; ++group) {
        const int from = std::max(first - group->first, 0);
        const int to = std::min(end - group->first, group->count);
        if (!group->isOfNull && to - from == group->count) {
            whole.push_back(group->key);
            continue;
        }
        takeWhole();
        append(keys, of(*group).keysFrom(from, to - from, {group->count, length.lastKey}));
    }
    takeWhole();
    return keys;
}

// --- where a row stands -------------------------------------------------------------------------------------------

// A row comes before another one when it does so by the first term in which they differ. Nulls come before everything in
// an ascending order.
int SetParts::indexOf(const Key &key, const SetLength &length) const
{
    if (m_scope.groups)
        return indexInGroups(key, length);
    const Dialect &dialect = m_connection.dialect();
    QStringList columns;
    for (const OrderTerm &term : m_scope.order)
        columns << term.column.sql;
    SqlCondition one{m_key + " = ?"_L1, {key.front()}};
    one += upTo(length.lastKey);
    const StatementPtr row = select(columns.join(", "_L1), one);
    if (!row->next())
        return -1;
    // Each of these is a range of the index.
    SqlCondition same = m_scope.condition;
    QStringList counts;
    QList<Value> values;
    for (int i = 0; i < m_scope.order.size(); ++i) {
        const auto &[column, descending] = m_scope.order[i];
        const Value value = row->isNull(i) ? Value() : row->valueAt(i, row->columnType(i));
        SqlCondition ahead = same;
        ahead += before(dialect, column, value, descending);
        ahead += upTo(length.lastKey);
        counts << u"(SELECT COUNT(*) FROM %1 WHERE %2)"_s.arg(m_scope.source, ahead.text);
        values += ahead.parameters;
        same += equals(dialect, column, value);
    }
    const StatementPtr count = m_connection.prepare("SELECT "_L1 + counts.join(" + "_L1));
    bindAll(*count, values);
    count->next();
    return static_cast<int>(count->intAt(0));
}

int SetParts::indexInGroups(const Key &key, const SetLength &length) const
{
    const StatementPtr row =
        select(m_scope.groups->order.constFirst().column.sql, {m_key + " = ?"_L1, {key.front()}});
    if (!row->next())
        return -1;
    const auto isOfRow = [key = row->intAt(0), isNull = row->isNull(0)](const SetLength::Group &group) {
        return group.isOfNull == isNull && group.key == key;
    };
    const auto group = std::ranges::find_if(length.groups, isOfRow);
    if (group == length.groups.end())
        return -1;
    const int within = of(*group).indexOf(key, {group->count, length.lastKey});
    return within < 0 ? -1 : group->first + within;
}

} // namespace Engine
