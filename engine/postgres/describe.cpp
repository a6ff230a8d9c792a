#include "engine/postgres/connection.h"
#include "engine/store/indexnames.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

// What the server's database holds, read back from its catalogue into the engine's layouts.

namespace Engine {

namespace {

FieldType fieldTypeOf(const QString &type, bool identity, bool money)
{
    if (type == "int2"_L1)
        return FieldType::SmallInt;
    if (type == "int4"_L1 || type == "int8"_L1)
        return identity ? FieldType::AutoInc : FieldType::Integer;
    if (type == "bool"_L1)
        return FieldType::Boolean;
    if (type == "date"_L1)
        return FieldType::Date;
    if (type.startsWith("timestamp"_L1))
        return FieldType::DateTime;
    if (type == "float4"_L1 || type == "float8"_L1 || type == "numeric"_L1)
        return money ? FieldType::Money : FieldType::Float;
    return FieldType::Memo;
}

// The comment holds the spelling, if it is still that of the column.
QString spelled(const QString &stored, const QString &comment)
{
    return comment.compare(stored, Qt::CaseInsensitive) == 0 ? comment : stored;
}

FieldDef fieldOf(const Statement &row)
{
    QString comment = row.textAt(3);
    const bool money = comment.endsWith(PostgresDialect::moneyMark);
    if (money)
        comment.chop(PostgresDialect::moneyMark.size());
    FieldDef field{spelled(row.textAt(0), comment), fieldTypeOf(row.textAt(1), row.intAt(4) == 1, money), 0};
    const auto size = static_cast<int>(row.intAt(2));
    if (field.type == FieldType::Memo && size > 0) {
        field.type = FieldType::Text;
        field.size = size;
    }
    return field;
}

// The column in an index's term: name, "name", or lower(name COLLATE "C") with the casts the server writes.
QString columnOf(const QString &term, bool *folded)
{
    static const QRegularExpression pattern(u"^(lower\\()?\\(*\"?([^\"():]+?)\"?(\\)*::| COLLATE|\\)|$)"_s);
    const QRegularExpressionMatch match = pattern.match(term);
    *folded = match.capturedLength(1) > 0;
    return match.captured(2);
}

// One row for each term of each index, in order.
const QString indexQuery =
    u"SELECT i.relname, x.indisprimary, pg_get_indexdef(x.indexrelid, k.n, true), x.indoption[k.n - 1] & 1 "
    "FROM pg_index x JOIN pg_class i ON i.oid = x.indexrelid "
    "CROSS JOIN LATERAL generate_series(1, x.indnkeyatts) AS k(n) "
    "WHERE x.indrelid = CAST(? AS bigint) AND x.indisvalid ORDER BY NOT x.indisprimary, x.indexrelid, k.n"_s;

QList<IndexDef> indexesOf(PostgresConnection &connection, qint64 table, const TableLayout &layout)
{
    QList<IndexDef> indexes;
    QString lastName;
    const StatementPtr row = connection.prepare(indexQuery);
    row->bindInt(0, table);
    while (row->next()) {
        const QString stored = row->textAt(0);
        const bool declaredKey = row->intAt(1) == 1;
        const QString name = declaredKey ? QString(u""_s) : indexNameFromPrefixed(layout.name, stored).toUpper();
        if (!declaredKey && indexNameFromPrefixed(layout.name, stored).isNull())
            continue;
        if (stored != lastName)
            indexes.append({name, {}, name.isEmpty() ? IndexOption::Primary : IndexOption::None});
        lastName = stored;
        IndexDef &index = indexes.last();
        bool folded = false;
        const QString column = columnOf(row->textAt(2), &folded);
        const FieldDef *field = layout.field(column);
        index.fields += (index.fields.isEmpty() ? ""_L1 : ";"_L1) + (field ? field->name : column);
        if (folded)
            index.options |= IndexOption::CaseInsensitive;
        if (row->intAt(3) == 1)
            index.options |= IndexOption::Descending;
    }
    return indexes;
}

} // namespace

std::optional<TableLayout> PostgresConnection::describe(const QString &table)
{
    StatementPtr row = prepare(u"SELECT CAST(c.oid AS bigint), c.relname, coalesce(obj_description(c.oid, "
                               u"'pg_class'), '') FROM pg_class c "
                               "WHERE c.relname = ? AND c.relkind IN ('r', 'p') AND pg_table_is_visible(c.oid)"_s);
    row->bindText(0, table.toLower());
    if (!row->next())
        return std::nullopt;
    const qint64 id = row->intAt(0);
    TableLayout layout;
    layout.name = spelled(row->textAt(1), row->textAt(2));

    row = prepare(
        u"SELECT a.attname, t.typname, CASE WHEN t.typname IN ('varchar', 'bpchar') THEN a.atttypmod - 4 "
        "ELSE 0 END, coalesce(col_description(a.attrelid, a.attnum), ''), a.attidentity <> '' OR "
        "coalesce(pg_get_expr(d.adbin, d.adrelid) LIKE 'nextval(%', false) FROM pg_attribute a JOIN pg_type t "
        "ON t.oid = a.atttypid LEFT JOIN pg_attrdef d ON d.adrelid = a.attrelid AND d.adnum = a.attnum "
        "WHERE a.attrelid = CAST(? AS bigint) AND a.attnum > 0 AND NOT a.attisdropped ORDER BY a.attnum"_s);
    row->bindInt(0, id);
    while (row->next())
        layout.fields << fieldOf(*row);
    row.reset();
    layout.indexes = indexesOf(*this, id, layout);
    return layout;
}

// As they are spelled, so that a copy in a file has them so as well.
QStringList PostgresConnection::tables()
{
    QStringList names;
    const StatementPtr row =
        prepare(u"SELECT c.relname, coalesce(obj_description(c.oid, 'pg_class'), '') FROM pg_class c "
                "WHERE c.relkind = 'r' AND c.relnamespace = current_schema()::regnamespace"_s);
    while (row->next())
        names << spelled(row->textAt(0), row->textAt(1));
    names.sort(Qt::CaseInsensitive);
    return names;
}

qint64 PostgresConnection::size()
{
    const StatementPtr row = prepare(u"SELECT pg_database_size(current_database())"_s);
    row->next();
    return row->intAt(0);
}

} // namespace Engine
