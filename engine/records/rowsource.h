#pragma once

#include "engine/records/dataset.h"
#include "engine/store/driver.h"
#include "engine/store/keylist.h"
#include "engine/store/sqlcondition.h"

#include <optional>
#include <span>

namespace Engine {

// One term of an order.
struct OrderTerm
{
    SqlColumn column;
    bool descending = false;
};

// What a set consists of, as fragments of a statement. Rows are referred to as "t".
struct SetScope
{
    QString source; // what stands after FROM: "Vendor t"
    QList<Value> sourceParameters;
    QStringList keyColumns; // whole-number expressions that tell rows apart
    SqlCondition condition;
    QList<OrderTerm> order; // total, by ending with the key
    bool byIndex = false; // the order is that of an index: the first rows are there long before all keys are
    QString firstSource; // has nearly the same rows, and an index for the order: for the first page
    QList<Value> firstParameters;
    static constexpr int mostFirstRows = 100; // that it is asked for
    bool mayFallShort = false; // it may have fewer than these though there are more
    QString joinedField; // a looked-up one that the source has as a column
    QString joinedColumn;
    // Its keys may be read in parts: it is a table as a whole, in the order of an index of it, by a key of one number that new
    // rows have above all others. Or in that of another table which is joined to it: then those rows are in the order of an index
    // to which the same is looked up there.
    struct Groups
    {
        QString rows; // the table alone, with which the source begins
        QList<OrderTerm> order; // of the rows of one, by what is looked up first
    };
    bool inParts = false;
    std::optional<Groups> groups;
    bool isNone = false; // no row is in it, and none can come
    // Text fields in the folded form of which an index exists: a search by the exact text goes through that index.
    QStringList foldedFields;
};

QString orderBy(const Dialect &dialect, const QList<OrderTerm> &order, bool backwards = false);

// The expression of a field of a set, for conditions and orders. Throws NoSuchField for a calculated one.
QString columnOf(const Dialect &dialect, const Field &field);

class SetParts;

// Reads keys and rows of one set. Holds no row itself.
class RowSource
{
public:
    // The scope's fields: data fields are columns, lookups subselects, calculated fields are left null.
    RowSource(Connection &connection, SetScope scope, const std::deque<Field> &fields);

    const SqlCondition &condition() const { return m_scope.condition; }
    KeyList keys() const;
    bool hasMoreThan(int rows) const;
    SetParts parts() const; // of a set that is read so
    // The first row in the set's order that meets the condition as well.
    std::optional<FoundRow> first(const SqlCondition &condition = {}) const;
    std::vector<FoundRow> firstFound(int count) const;
    // As many of these as can be had without going over all rows, where the set guesses them.
    std::vector<FoundRow> foundSoon(int count) const;
    bool mayFallShort() const { return m_scope.mayFallShort; }
    bool
    hasNewestOf(const KeyList &keys) const; // whether the set's condition lets it in or not; keys of one number
    StatementPtr allRows() const; // in the set's order, for takeRow(); null where there can be none
    int keyWidth() const { return static_cast<int>(m_scope.keyColumns.size()); }
    bool guessesFirst() const { return !m_scope.firstSource.isEmpty(); }
    bool hasFirstRowsSoon() const { return m_scope.byIndex || guessesFirst(); }
    bool comesInPages() const
    {
        return m_scope.inParts || guessesFirst();
    } // and all that follows them is read later
    bool isOnStandby() const { return m_connection.origin().isStandby(); }
    bool isFar() const { return m_connection.sendsAhead(); } // each statement costs a journey
    // The row of a key, whether the set's condition lets it in or not.
    std::optional<Row> row(const Key &key) const;
    StatementPtr askRow(const Key &key) const; // for takeRow()
    std::optional<Row> takeRow(Statement &asked) const;
    bool holds(const Key &key) const; // the set has a row of this key now
    // The rows of the keys, in their order; a missing one is a row of nulls.
    std::vector<Row> rows(std::span<const qint64> keys) const;
    // The value of a lookup field for a given value of its key field.
    Value lookedUp(const Field &field, const Value &key) const;
    // The same for several lookup fields of one key field.
    std::vector<Value> lookedUp(const std::vector<const Field *> &fields, const Value &key) const;

    // The condition that the fields equal the values. Throws NoSuchField, BadValue.
    SqlCondition match(const QStringList &fields, const QList<Value> &values, LocateOptions options) const;
    // The expression of a field, for conditions. Throws NoSuchField for a calculated one.
    QString columnOf(const Field &field) const;

private:
    Key readKey(const Statement &statement, int first) const;
    Row readRow(const Statement &statement) const;
    Row nullRow() const { return Row(m_fields.size()); }
    SqlCondition keyCondition(const Key &key) const;
    QString orderBy() const { return Engine::orderBy(m_connection.dialect(), m_scope.order); }
    SqlCondition matchOne(const Field &field, const Value &value, bool partial, bool caseInsensitive) const;
    StatementPtr select(const QString &columns, const SqlCondition &condition, const QString &tail) const;

    Connection &m_connection;
    SetScope m_scope;
    const std::deque<Field> &m_fields;
    QString m_columns; // of the row
    int m_columnCount = 0;
    QString m_keys;
};

} // namespace Engine
