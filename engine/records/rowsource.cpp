#include "engine/records/rowsource.h"

#include "engine/records/setparts.h"
#include "engine/store/dialect.h"
#include "engine/values/error.h"

#include <algorithm>
#include <QHash>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

QString lookupSelect(const Dialect &dialect, const Lookup &lookup, const QString &key)
{
    return u"(SELECT r.%1 FROM %2 r WHERE r.%3 = %4 LIMIT 1)"_s.arg(
        dialect.name(lookup.resultField), dialect.name(lookup.table), dialect.name(lookup.tableKey), key);
}

const Field *fieldNamed(const std::deque<Field> &fields, QStringView name)
{
    for (const Field &field : fields) {
        if (name.compare(field.name, Qt::CaseInsensitive) == 0)
            return &field;
    }
    return nullptr;
}

} // namespace

RowSource::RowSource(Connection &connection, SetScope scope, const std::deque<Field> &fields)
    : m_connection(connection)
    , m_scope(std::move(scope))
    , m_fields(fields)
    , m_keys(m_scope.keyColumns.join(", "_L1))
{
    QStringList columns;
    for (const Field &field : m_fields) {
        if (field.kind != FieldKind::Calculated)
            columns << columnOf(field);
    }
    m_columns = columns.join(", "_L1);
    m_columnCount = static_cast<int>(columns.size());
}

QString RowSource::columnOf(const Field &field) const
{
    return field.name == m_scope.joinedField ? m_scope.joinedColumn
                                             : Engine::columnOf(m_connection.dialect(), field);
}

QString columnOf(const Dialect &dialect, const Field &field)
{
    if (field.kind == FieldKind::Data)
        return "t."_L1 + dialect.name(field.name);
    if (field.kind == FieldKind::Lookup)
        return lookupSelect(dialect, field.lookup, "t."_L1 + dialect.name(field.lookup.keyField));
    raise(ErrorCode::NoSuchField, Texts::tr("%1 is calculated and cannot be searched for.").arg(field.caption()));
}

StatementPtr RowSource::select(const QString &columns, const SqlCondition &condition, const QString &tail) const
{
    QString sql = "SELECT "_L1 + columns + " FROM "_L1 + m_scope.source;
    if (!condition.isEmpty())
        sql += " WHERE "_L1 + condition.text;
    StatementPtr statement = m_connection.prepare(sql + tail);
    const int next = bindAll(*statement, m_scope.sourceParameters);
    bindAll(*statement, condition.parameters, next);
    return statement;
}

Key RowSource::readKey(const Statement &statement, int first) const
{
    Key key;
    for (int i = 0; i < m_scope.keyColumns.size(); ++i)
        key << statement.intAt(first + i);
    return key;
}

Row RowSource::readRow(const Statement &statement) const
{
    Row row(m_fields.size());
    int column = 0;
    for (size_t i = 0; i < m_fields.size(); ++i) {
        if (m_fields[i].kind != FieldKind::Calculated)
            row[i] = statement.valueAt(column++, m_fields[i].type);
    }
    return row;
}

KeyList RowSource::keys() const
{
    KeyList keys(static_cast<int>(m_scope.keyColumns.size()));
    if (m_scope.isNone)
        return keys;
    const StatementPtr statement = select(m_keys, m_scope.condition, orderBy());
    while (statement->next()) {
        for (int i = 0; i < keys.width(); ++i)
            keys.append(statement->intAt(i));
    }
    return keys;
}

QString orderBy(const Dialect &dialect, const QList<OrderTerm> &order, bool backwards)
{
    QStringList terms;
    for (const OrderTerm &term : order)
        terms << dialect.orderTerm(term.column.sql, term.column.caseInsensitive, term.descending != backwards);
    return " ORDER BY "_L1 + terms.join(", "_L1);
}

SetParts RowSource::parts() const { return {m_connection, m_scope}; }

bool RowSource::hasMoreThan(int rows) const
{
    return !m_scope.isNone && select(u"1"_s, m_scope.condition, u" LIMIT 1 OFFSET %1"_s.arg(rows))->next();
}

std::optional<FoundRow> RowSource::first(const SqlCondition &condition) const
{
    if (m_scope.isNone)
        return std::nullopt;
    if (condition.isEmpty() && !m_scope.firstSource.isEmpty()) {
        std::vector<FoundRow> found = firstFound(1);
        return found.empty() ? std::nullopt : std::optional(std::move(found.front()));
    }
    SqlCondition all = m_scope.condition;
    all += condition;
    const StatementPtr statement = select(m_columns + ", "_L1 + m_keys, all, orderBy() + " LIMIT 1"_L1);
    if (!statement->next())
        return std::nullopt;
    return FoundRow{readKey(*statement, m_columnCount), readRow(*statement)};
}

StatementPtr RowSource::allRows() const
{
    return m_scope.isNone ? nullptr : select(m_columns, m_scope.condition, orderBy());
}

std::vector<FoundRow> RowSource::foundSoon(int count) const
{
    RowSource sooner = *this;
    sooner.m_scope.source = std::exchange(sooner.m_scope.firstSource, {});
    sooner.m_scope.sourceParameters = m_scope.firstParameters;
    return sooner.firstFound(count);
}

bool RowSource::hasNewestOf(const KeyList &keys) const
{
    qint64 newest = 0;
    for (int i = 0; i < keys.count(); ++i)
        newest = std::max(newest, keys.at(i).front());
    return keys.count() == 0 || row({newest}).has_value();
}

// Where the source for that has too few, the others may be what it leaves out.
std::vector<FoundRow> RowSource::firstFound(int count) const
{
    if (m_scope.isNone)
        return {};
    if (!m_scope.firstSource.isEmpty() && count <= SetScope::mostFirstRows) {
        std::vector<FoundRow> rows = foundSoon(count);
        if (rows.size() == static_cast<size_t>(count))
            return rows;
    }
    const StatementPtr statement =
        select(m_columns + ", "_L1 + m_keys, m_scope.condition, orderBy() + " LIMIT "_L1 + QString::number(count));
    std::vector<FoundRow> rows;
    while (statement->next())
        rows.push_back({readKey(*statement, m_columnCount), readRow(*statement)});
    return rows;
}

SqlCondition RowSource::keyCondition(const Key &key) const
{
    SqlCondition condition;
    for (int i = 0; i < key.size(); ++i)
        condition += {m_scope.keyColumns[i] + " = ?"_L1, {key[i]}};
    return condition;
}

std::optional<Row> RowSource::row(const Key &key) const
{
    const StatementPtr statement = select(m_columns, keyCondition(key), {});
    return takeRow(*statement);
}

StatementPtr RowSource::askRow(const Key &key) const
{
    StatementPtr statement = select(m_columns, keyCondition(key), {});
    statement->ask();
    return statement;
}

std::optional<Row> RowSource::takeRow(Statement &asked) const
{
    if (!asked.next())
        return std::nullopt;
    return readRow(asked);
}

bool RowSource::holds(const Key &key) const
{
    SqlCondition condition = keyCondition(key);
    condition += m_scope.condition;
    return select(m_keys, condition, {})->next();
}

std::vector<Row> RowSource::rows(std::span<const qint64> keys) const
{
    // A key of several numbers is asked for by a list for each of them. That may bring rows which nobody asked for;
    // they are few, since the numbers of one window belong together.
    const auto width = static_cast<size_t>(m_scope.keyColumns.size());
    const size_t count = keys.size() / width;
    SqlCondition condition;
    for (size_t part = 0; part < width; ++part) {
        std::vector<qint64> numbers;
        numbers.reserve(count);
        for (size_t i = 0; i < count; ++i)
            numbers.push_back(keys[i * width + part]);
        std::sort(numbers.begin(), numbers.end());
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
        condition += {m_connection.dialect().inNumberList(m_scope.keyColumns[static_cast<int>(part)]),
                      {numberList(numbers)}};
    }
    QHash<Key, size_t> places;
    places.reserve(static_cast<qsizetype>(count));
    for (size_t i = 0; i < count; ++i) {
        const auto key = keys.subspan(i * width, width);
        places.insert(Key(key.begin(), key.end()), i);
    }
    std::vector<Row> rows(count, nullRow());
    const StatementPtr statement = select(m_columns + ", "_L1 + m_keys, condition, {});
    while (statement->next()) {
        const auto place = places.constFind(readKey(*statement, m_columnCount));
        if (place != places.constEnd())
            rows[*place] = readRow(*statement);
    }
    return rows;
}

Value RowSource::lookedUp(const Field &field, const Value &key) const { return lookedUp({&field}, key).front(); }

std::vector<Value> RowSource::lookedUp(const std::vector<const Field *> &fields, const Value &key) const
{
    std::vector<Value> values(fields.size());
    if (key.isNull())
        return values;
    std::vector<StatementPtr> statements;
    for (const Field *field : fields) {
        statements.push_back(
            m_connection.prepare("SELECT "_L1 + lookupSelect(m_connection.dialect(), field->lookup, u"?"_s)));
        statements.back()->bind(0, key);
        if (fields.size() > 1)
            statements.back()->ask();
    }
    for (size_t i = 0; i < fields.size(); ++i)
        if (statements[i]->next())
            values[i] = statements[i]->valueAt(0, fields[i]->type);
    return values;
}

SqlCondition RowSource::matchOne(const Field &field, const Value &value, bool partial, bool caseInsensitive) const
{
    const Dialect &dialect = m_connection.dialect();
    const SqlColumn column{columnOf(field), caseInsensitive && isText(field.type)};
    const Value fitting = value.as(field.type);
    const bool hasFoldedIndex = isText(field.type) && !column.caseInsensitive
        && m_scope.foldedFields.contains(field.name, Qt::CaseInsensitive);
    const SqlColumn folded{column.sql, true};
    if (partial && isText(field.type)) {
        SqlCondition condition = beginsWith(dialect, column, fitting.toText());
        if (hasFoldedIndex)
            condition += beginsWith(dialect, folded, fitting.toText());
        return condition;
    }
    SqlCondition condition = equals(dialect, column, fitting);
    if (hasFoldedIndex && !fitting.isNull())
        condition += equals(dialect, folded, fitting);
    return condition;
}

SqlCondition RowSource::match(const QStringList &fields, const QList<Value> &values, LocateOptions options) const
{
    SqlCondition condition;
    const auto count = std::min(fields.size(), values.size());
    for (qsizetype i = 0; i < count; ++i) {
        const Field *field = fieldNamed(m_fields, fields[i]);
        if (!field) {
            raise(ErrorCode::NoSuchField, Texts::tr("There is no field \"%1\".").arg(fields[i]));
        }
        const bool partial = options.testFlag(LocateOption::PartialKey) && i + 1 == count;
        condition += matchOne(*field, values[i], partial, options.testFlag(LocateOption::CaseInsensitive));
    }
    return condition;
}

} // namespace Engine
