#include "engine/store/sqlcondition.h"

#include "engine/store/dialect.h"
#include "engine/store/driver.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

struct Side
{
    QString sql;
    Value value;
};

// The column and the value in the form in which they compare.
Side comparable(const Dialect &dialect, const SqlColumn &column, const Value &value)
{
    const bool text = std::holds_alternative<QString>(value.storage());
    if (!column.caseInsensitive || !text)
        return {column.sql, value};
    return {dialect.foldCase(column.sql), foldedAscii(value.toText())};
}

SqlCondition compare(const Dialect &dialect, const SqlColumn &column, QLatin1StringView operation,
                     const Value &value)
{
    const Side side = comparable(dialect, column, value);
    return {side.sql + operation + u'?', {side.value}};
}

SqlCondition isNull(const SqlColumn &column) { return {column.sql + " IS NULL"_L1, {}}; }
SqlCondition isNotNull(const SqlColumn &column) { return {column.sql + " IS NOT NULL"_L1, {}}; }

SqlCondition either(const SqlCondition &one, const SqlCondition &other)
{
    return {u'(' + one.text + " OR "_L1 + other.text + u')', one.parameters + other.parameters};
}

SqlCondition both(const SqlCondition &one, const SqlCondition &other)
{
    return {u'(' + one.text + " AND "_L1 + other.text + u')', one.parameters + other.parameters};
}

using Columns = QList<SqlColumn>;
using Values = QList<Value>;

// Bounds over several columns are unrolled: rows with an equal first column are compared by the next one.
SqlCondition atLeast(const Dialect &dialect, const Columns &columns, const Values &bound, int at)
{
    const SqlColumn &column = columns[at];
    const Value &value = bound[at];
    const bool last = at + 1 == bound.size();
    if (value.isNull()) {
        if (last)
            return {u"1=1"_s, {}};
        return either(isNotNull(column), atLeast(dialect, columns, bound, at + 1));
    }
    if (last)
        return compare(dialect, column, " >= "_L1, value);
    return either(compare(dialect, column, " > "_L1, value),
                  both(compare(dialect, column, " = "_L1, value), atLeast(dialect, columns, bound, at + 1)));
}

SqlCondition atMost(const Dialect &dialect, const Columns &columns, const Values &bound, int at)
{
    const SqlColumn &column = columns[at];
    const Value &value = bound[at];
    const bool last = at + 1 == bound.size();
    if (value.isNull())
        return last ? isNull(column) : both(isNull(column), atMost(dialect, columns, bound, at + 1));
    if (last)
        return either(compare(dialect, column, " <= "_L1, value), isNull(column));
    const SqlCondition tie =
        both(compare(dialect, column, " = "_L1, value), atMost(dialect, columns, bound, at + 1));
    return either(either(compare(dialect, column, " < "_L1, value), isNull(column)), tie);
}

} // namespace

SqlCondition &SqlCondition::operator+=(const SqlCondition &other)
{
    if (other.isEmpty())
        return *this;
    text = text.isEmpty() ? other.text : text + " AND "_L1 + other.text;
    parameters += other.parameters;
    return *this;
}

SqlCondition never() { return {u"1=0"_s, {}}; }

SqlCondition equals(const Dialect &dialect, const SqlColumn &column, const Value &value)
{
    return value.isNull() ? isNull(column) : compare(dialect, column, " = "_L1, value);
}

SqlCondition before(const Dialect &dialect, const SqlColumn &column, const Value &value, bool descending)
{
    if (value.isNull())
        return descending ? isNotNull(column) : never();
    const SqlCondition compared = compare(dialect, column, descending ? " > "_L1 : " < "_L1, value);
    return descending ? compared : either(isNull(column), compared);
}

SqlCondition beginsWith(const Dialect &dialect, const SqlColumn &column, const QString &prefix)
{
    if (prefix.isEmpty())
        return {};
    SqlCondition condition = compare(dialect, column, " >= "_L1, prefix);
    const QString folded = column.caseInsensitive ? foldedAscii(prefix) : prefix;
    const QString after = afterPrefix(folded, column.caseInsensitive);
    if (!after.isNull())
        condition += compare(dialect, column, " < "_L1, after);
    return condition;
}

SqlCondition between(const Dialect &dialect, const QList<SqlColumn> &columns, const QList<Value> &low,
                     const QList<Value> &high)
{
    SqlCondition condition;
    int at = 0;
    const auto common = std::min(low.size(), high.size());
    while (at < common && low[at] == high[at]) {
        condition += equals(dialect, columns[at], low[at]);
        ++at;
    }
    const bool hasLow = at < low.size();
    const bool hasHigh = at < high.size();
    // What is unrolled is of no use to an index, a plain bound of the first column is.
    if (hasLow && !low[at].isNull() && low.size() > at + 1)
        condition += compare(dialect, columns[at], " >= "_L1, low[at]);
    if (hasLow)
        condition += atLeast(dialect, columns, low, at);
    if (!hasHigh)
        return condition;
    const bool nullsOut = hasLow && !low[at].isNull();
    if (nullsOut && !high[at].isNull())
        condition += compare(dialect, columns[at], " <= "_L1, high[at]);
    if (!nullsOut || high[at].isNull() || high.size() > at + 1)
        condition += atMost(dialect, columns, high, at);
    return condition;
}

QString numberList(std::span<const qint64> numbers)
{
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(numbers.size()));
    for (const qint64 number : numbers)
        texts.append(QString::number(number));
    return u'[' + texts.join(u',') + u']';
}

int bindAll(Statement &statement, const QList<Value> &values, int first)
{
    for (const Value &value : values)
        statement.bind(first++, value);
    return first;
}

QString foldedAscii(const QString &text)
{
    QString folded = text;
    for (QChar &unit : folded) {
        if (unit >= u'A' && unit <= u'Z')
            unit = QChar(unit.unicode() + 32);
    }
    return folded;
}

QString afterPrefix(const QString &prefix, bool folded)
{
    QList<uint> points = prefix.toUcs4();
    while (!points.isEmpty() && points.last() >= 0x10FFFF)
        points.removeLast();
    if (points.isEmpty())
        return {};
    uint &last = points.last();
    ++last;
    if (last == 0xD800) // surrogates are no characters
        last = 0xE000;
    if (folded && last == u'A') // folded texts have no capitals
        last = u'[';
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(points.constData()), points.size());
}

} // namespace Engine
