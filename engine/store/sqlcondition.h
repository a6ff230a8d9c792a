#pragma once

#include "engine/values/value.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <span>

namespace Engine {

class Dialect;
class Statement;

// A condition as it stands in a statement, with the values of its "?" in order. An empty text is no condition.
struct SqlCondition
{
    QString text;
    QList<Value> parameters;

    bool isEmpty() const { return text.isEmpty(); }
    // Joins another condition by AND.
    SqlCondition &operator+=(const SqlCondition &other);
};

SqlCondition never(); // no row meets it

// A column of a condition, with how its text compares.
struct SqlColumn
{
    QString sql; // complete: "t.VendorName"
    bool caseInsensitive = false; // for text: as a case-insensitive index sorts it
};

// Null equals null here, as it does in an index.
SqlCondition equals(const Dialect &dialect, const SqlColumn &column, const Value &value);
// The column comes before the value in its order; a null one does in an ascending order.
SqlCondition before(const Dialect &dialect, const SqlColumn &column, const Value &value, bool descending);
// The text begins with the prefix, as a range that an index serves.
SqlCondition beginsWith(const Dialect &dialect, const SqlColumn &column, const QString &prefix);
// The columns, compared one after the other as in an index, lie between the bounds, both included. A bound may be
// shorter than the columns. Nulls come before everything.
SqlCondition between(const Dialect &dialect, const QList<SqlColumn> &columns, const QList<Value> &low,
                     const QList<Value> &high);

// Numbers as the text that Dialect::inNumberList takes.
QString numberList(std::span<const qint64> numbers);

// Binds the values from the given parameter on and returns the parameter after the last.
int bindAll(Statement &statement, const QList<Value> &values, int first = 0);

// Letters A to Z in lower case, others as they are: what the case-insensitive indexes of both stores do.
QString foldedAscii(const QString &text);
// The smallest text after all that begin with the prefix; null when there is none.
QString afterPrefix(const QString &prefix, bool folded = false);

} // namespace Engine
