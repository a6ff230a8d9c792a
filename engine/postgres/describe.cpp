#include "engine/postgres/connection.h"
#include "engine/postgres/locks.h"
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

// One answer describes a table: a row for itself, one for each column and one for each term of each index, in their order.
// The server may be far away. What the columns of the answer hold, by what the row is for:
//   part 0: the table's name and its comment
//   part 1: a column's name, its comment, type and length, whether it counts by itself
//   part 2: an index's name, its term, whether that descends, whether it is the declared key
const QString description =
    u"SELECT * FROM (WITH t AS (SELECT c.oid, c.relname FROM pg_class c "
    "WHERE c.relname = ? AND c.relkind IN ('r', 'p') AND pg_table_is_visible(c.oid)) "
    "SELECT 0 AS part, CAST(0 AS bigint) AS place, CAST(t.relname AS text), "
    "coalesce(obj_description(t.oid, 'pg_class'), ''), '', 0, false FROM t "
    "UNION ALL SELECT 1, a.attnum, a.attname, coalesce(col_description(a.attrelid, a.attnum), ''), y.typname, "
    "CASE WHEN y.typname IN ('varchar', 'bpchar') THEN a.atttypmod - 4 ELSE 0 END, "
    "a.attidentity <> '' OR coalesce(pg_get_expr(d.adbin, d.adrelid) LIKE 'nextval(%', false) "
    "FROM t JOIN pg_attribute a ON a.attrelid = t.oid JOIN pg_type y ON y.oid = a.atttypid "
    "LEFT JOIN pg_attrdef d ON d.adrelid = a.attrelid AND d.adnum = a.attnum "
    "WHERE a.attnum > 0 AND NOT a.attisdropped "
    "UNION ALL SELECT 2, row_number() OVER (ORDER BY NOT x.indisprimary, x.indexrelid, k.n), i.relname, "
    "pg_get_indexdef(x.indexrelid, k.n, true), '', x.indoption[k.n - 1] & 1, x.indisprimary "
    "FROM t JOIN pg_index x ON x.indrelid = t.oid JOIN pg_class i ON i.oid = x.indexrelid "
    "CROSS JOIN LATERAL generate_series(1, x.indnkeyatts) AS k(n) WHERE x.indisvalid) d "
    "ORDER BY 1, 2"_s;

enum Answer { Part, Place, Name, Words, Type, Number, Mark };

FieldDef fieldOf(const Statement &row)
{
    QString comment = row.textAt(Words);
    const bool money = comment.endsWith(PostgresDialect::moneyMark);
    if (money)
        comment.chop(PostgresDialect::moneyMark.size());
    FieldDef field{spelled(row.textAt(Name), comment), fieldTypeOf(row.textAt(Type), row.intAt(Mark) == 1, money),
                   0};
    const auto size = static_cast<int>(row.intAt(Number));
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

// Takes the next term of an index over; those of one index follow each other.
void addTerm(TableLayout &layout, QString &lastName, const Statement &row)
{
    const QString stored = row.textAt(Name);
    const bool declaredKey = row.intAt(Mark) == 1;
    const QString name = declaredKey ? QString(u""_s) : indexNameFromPrefixed(layout.name, stored).toUpper();
    if (!declaredKey && indexNameFromPrefixed(layout.name, stored).isNull())
        return;
    if (stored != lastName)
        layout.indexes.append({name, {}, name.isEmpty() ? IndexOption::Primary : IndexOption::None});
    lastName = stored;
    IndexDef &index = layout.indexes.last();
    bool folded = false;
    const QString column = columnOf(row.textAt(Words), &folded);
    const FieldDef *field = layout.field(column);
    index.fields += (index.fields.isEmpty() ? ""_L1 : ";"_L1) + (field ? field->name : column);
    if (folded)
        index.options |= IndexOption::CaseInsensitive;
    if (row.intAt(Number) == 1)
        index.options |= IndexOption::Descending;
}

} // namespace

StatementPtr PostgresConnection::describing(const QString &table)
{
    StatementPtr statement = prepare(description);
    statement->bindText(0, table);
    return statement;
}

void PostgresConnection::askLayout(const QString &table)
{
    StatementPtr asked = describing(table);
    asked->ask();
    m_askedLayouts.insert_or_assign(table, std::move(asked));
}

void PostgresConnection::forgetLayout(const QString &table)
{
    m_layouts.remove(table);
    m_askedLayouts.erase(table);
}

void PostgresConnection::forgetLayouts()
{
    m_layouts.clear();
    m_askedLayouts.clear();
}

std::optional<TableLayout> PostgresConnection::describe(const QString &table)
{
    const QString name = table.toLower();
    if (const auto known = m_layouts.constFind(name); known != m_layouts.constEnd() && m_locks->isOpenShared(name))
        return *known;
    const auto asked = m_askedLayouts.extract(name);
    const std::optional<TableLayout> layout = read(asked ? *asked.mapped() : *describing(name));
    if (layout && m_locks->isOpenShared(name))
        m_layouts.insert(name, *layout);
    return layout;
}

std::optional<TableLayout> PostgresConnection::read(Statement &statement) const
{
    Statement *row = &statement;
    if (!row->next())
        return std::nullopt;
    TableLayout layout;
    layout.name = spelled(row->textAt(Name), row->textAt(Words));
    QString lastIndex;
    while (row->next()) {
        if (row->intAt(Part) == 1)
            layout.fields << fieldOf(*row);
        else
            addTerm(layout, lastIndex, *row);
    }
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
