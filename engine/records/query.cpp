#include "engine/records/query.h"

#include "engine/records/datasetprivate.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/namedparameters.h"
#include "engine/values/error.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Engine {

struct Query::Text
{
    PositionalSql positional;
};

Query::Query(Database &database, QString sql)
    : DataSet(database)
    , m_sql(std::move(sql))
{
}
Query::~Query() = default;

void Query::setSql(const QString &sql) { setSql(sql, {}); }

void Query::setSql(const QString &localSql, const QString &remoteSql)
{
    close();
    m_text.reset();
    m_sql = localSql;
    m_remoteSql = remoteSql;
}

void Query::setFirstPageSql(const QString &sql)
{
    close();
    m_firstPageSql = sql;
}

void Query::setParameter(QStringView name, const Value &value) { m_parameters[name.toString().toLower()] = value; }

void Query::setKeyFields(const QString &fields)
{
    close();
    m_keyFields = fields;
}

void Query::setOrderBy(const QString &fields)
{
    if (fields == m_orderBy && m_sorting == Sorting())
        return;
    m_sorting = {};
    m_orderBy = fields;
    if (m_open)
        takeAnew(Place::Keep, {});
}

void Query::setFoldedFields(const QString &fields)
{
    close();
    m_foldedFields = fields;
}

QList<OrderedField> Query::orderedFields() const
{
    const QStringList folded = m_foldedFields.split(u';', Qt::SkipEmptyParts);
    QList<OrderedField> fields;
    for (const QString &name : m_orderBy.split(u';', Qt::SkipEmptyParts))
        fields.append({name, folded.contains(name, Qt::CaseInsensitive)});
    return fields;
}

bool Query::isCaseSorted(const Field &field) const
{
    const auto contains = [&field](const QString &names) {
        return names.split(u';', Qt::SkipEmptyParts).contains(field.name, Qt::CaseInsensitive);
    };
    return contains(m_orderBy) && !contains(m_foldedFields);
}

// The statement's text for the store in hand, with its parameters in order.
const Query::Text &Query::prepared() const
{
    if (!m_text) {
        const QString sql =
            m_remoteSql.isEmpty() ? m_sql : m_database.connection().dialect().variant(m_sql, m_remoteSql);
        m_text = std::make_unique<Text>(Text{positional(sql.trimmed())});
        while (m_text->positional.sql.endsWith(u';'))
            m_text->positional.sql.chop(1);
    }
    return *m_text;
}

QList<Value> Query::parameters() const
{
    QList<Value> values;
    for (const QString &name : prepared().positional.names) {
        const auto value = m_parameters.constFind(name.toLower());
        if (value == m_parameters.constEnd()) {
            raise(ErrorCode::WrongState, Texts::tr("The query's parameter \"%1\" has no value.").arg(name));
        }
        values << *value;
    }
    return values;
}

void Query::open()
{
    if (m_open)
        return;
    const bool list = !m_keyFields.isEmpty();
    if (!list && m_filtered) {
        raise(ErrorCode::WrongState, Texts::tr("A query without key fields cannot be filtered."));
    }
    m_values = parameters();
    invalidate(Place::First);
    setDataFields(list ? listFields() : readAll());
    d->inMemory = !list;
    m_open = true;
    if (m_filtered) {
        try {
            DataSetReader(*this).source(); // a filter that does not fit the query shows now
        } catch (...) {
            m_open = false;
            throw;
        }
    }
    Q_EMIT opened();
    emitListChanged();
}

void Query::close()
{
    if (!m_open)
        return;
    m_open = false;
    invalidate(Place::First);
    d->memory.clear();
    d->inMemory = false;
    Q_EMIT closed();
}

void Query::refresh()
{
    requireOpen();
    if (d->inMemory)
        readAll();
    DataSet::refresh();
}

qint64 Query::execute()
{
    const QList<Value> values = parameters();
    const StatementPtr statement = m_database.connection().prepare(prepared().positional.sql);
    bindAll(*statement, values);
    return statement->execute();
}

namespace {

Field columnField(Statement &statement, int column)
{
    Field field;
    field.name = statement.columnName(column);
    field.type = statement.columnType(column);
    return field;
}

} // namespace

// The columns of a list, told from its first row.
std::vector<Field> Query::listFields() const
{
    const StatementPtr statement =
        m_database.connection().prepare("SELECT t.* FROM ("_L1 + prepared().positional.sql + ") t LIMIT 1"_L1);
    bindAll(*statement, m_values);
    statement->next();
    std::vector<Field> fields;
    const int count = statement->columnCount();
    fields.reserve(static_cast<size_t>(count));
    for (int column = 0; column < count; ++column)
        fields.push_back(columnField(*statement, column));
    return fields;
}

// Reads the whole result. The type of a computed column shows in its first value that is not null.
std::vector<Field> Query::readAll()
{
    const StatementPtr statement = m_database.connection().prepare(prepared().positional.sql);
    bindAll(*statement, m_values);
    std::vector<Field> fields;
    std::vector<bool> seen;
    std::vector<Row> rows;
    const auto others = static_cast<size_t>(std::count_if(
        m_fields.begin(), m_fields.end(), [](const Field &field) { return field.kind != FieldKind::Data; }));
    bool more = statement->next();
    for (int column = 0; column < statement->columnCount(); ++column) {
        fields.push_back(columnField(*statement, column));
        seen.push_back(more && !statement->isNull(column));
    }
    for (; more; more = statement->next()) {
        Row row(fields.size() + others);
        for (size_t i = 0; i < fields.size(); ++i) {
            const int column = static_cast<int>(i);
            if (statement->isNull(column))
                continue;
            if (!seen[i])
                fields[i].type = statement->columnType(column);
            seen[i] = true;
            row[i] = statement->valueAt(column, fields[i].type);
        }
        rows.push_back(std::move(row));
    }
    d->memory = std::move(rows);
    return fields;
}

SetScope Query::scope() const
{
    const Dialect &dialect = m_database.connection().dialect();
    SetScope scope;
    scope.source = u'(' + prepared().positional.sql + ") t"_L1;
    scope.sourceParameters = m_values;
    if (!m_firstPageSql.isEmpty())
        scope.firstSource = u'(' + m_firstPageSql + ") t"_L1;
    const auto column = [&](const QString &name) { return "t."_L1 + dialect.name(field(name.trimmed()).name); };
    for (const QString &name : m_keyFields.split(u';', Qt::SkipEmptyParts))
        scope.keyColumns << column(name);
    QStringList columns;
    for (const QString &name : m_orderBy.split(u';', Qt::SkipEmptyParts))
        columns << column(name);
    for (const QString &key : std::as_const(scope.keyColumns)) {
        if (!columns.contains(key))
            columns << key;
    }
    for (const QString &ordered : std::as_const(columns))
        scope.order.append(OrderTerm{{ordered}});
    scope.foldedFields = m_foldedFields.split(u';', Qt::SkipEmptyParts);
    return scope;
}

Value singleValue(Database &database, const QString &sql, const QList<Value> &parameters)
{
    const StatementPtr statement = database.connection().prepare(sql);
    bindAll(*statement, parameters);
    if (!statement->next() || statement->isNull(0))
        return {};
    return statement->valueAt(0, statement->columnType(0));
}

bool hasRow(Database &database, const QString &table, const QString &keyField, const Value &key)
{
    if (key.isNull())
        return false;
    return !singleValue(database, u"SELECT %2 FROM %1 WHERE %2 = ?"_s.arg(table, keyField), {key}).isNull();
}

} // namespace Engine
