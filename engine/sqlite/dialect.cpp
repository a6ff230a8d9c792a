#include "engine/sqlite/dialect.h"

#include "engine/store/indexnames.h"
#include "engine/store/reservedwords.h"
#include "engine/values/conversion.h"

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

const FieldDef *autoIncrement(const TableLayout &layout)
{
    for (const FieldDef &field : layout.fields) {
        if (field.type == FieldType::AutoInc)
            return &field;
    }
    return nullptr;
}

// The field that becomes SQLite's own row number: the auto-increment field wherever it stands, or else the only
// field of a primary key.
QString rowNumberField(const TableLayout &layout)
{
    if (const FieldDef *field = autoIncrement(layout))
        return field->name;
    const IndexDef *primary = layout.primary();
    if (!primary || primary->options.testFlag(IndexOption::Descending))
        return {};
    const QStringList names = primary->fieldNames();
    const FieldDef *field = names.size() == 1 ? layout.field(names.first()) : nullptr;
    return field && field->type == FieldType::Integer ? field->name : QString();
}

bool isPrimaryOver(const TableLayout &layout, const QString &field)
{
    return layout.primary() && layout.primary()->fields.compare(field, Qt::CaseInsensitive) == 0
        && !layout.primary()->options.testFlag(IndexOption::Descending);
}

// SQLite has no test for numbers and dates: a date is one that comes back unchanged from being understood.
constexpr ConversionTexts conversions{
    .wholeNumber = "CAST(%1 AS INTEGER)",
    .floating = "CAST(%1 AS REAL)",
    .textIsNumber = "(trim(%1) GLOB '*[0-9]*' AND trim(%1) NOT GLOB '*[^0-9.-]*' AND trim(%1) NOT GLOB '?*-*' "
                    "AND trim(%1) NOT GLOB '*.*.*')",
    .textToNumber = "CAST(trim(%1) AS REAL)",
    .booleanToNumber = "%1",
    .textToBoolean = "CASE WHEN lower(trim(%1)) IN ('true', 't', 'yes', 'y', '1') THEN 1 "
                     "WHEN lower(trim(%1)) IN ('false', 'f', 'no', 'n', '0') THEN 0 END",
    .numberToText = "CASE WHEN %1 = CAST(%1 AS INTEGER) THEN CAST(CAST(%1 AS INTEGER) AS TEXT) "
                    "ELSE CAST(%1 AS TEXT) END",
    .textToDate = "CASE WHEN date(substr(%1, 1, 10), '+0 days') = substr(%1, 1, 10) THEN substr(%1, 1, 10) END",
    .textToDateTime = "CASE WHEN datetime(%1, '+0 days') = %1 THEN %1 "
                      "WHEN date(%1, '+0 days') = %1 THEN %1 || ' 00:00:00' END",
    .dateToText = "%1",
    .dateTimeToText = "%1",
    .dateToDateTime = "%1 || ' 00:00:00'",
    .dateTimeToDate = "substr(%1, 1, 10)",
};

} // namespace

QString SqliteDialect::name(const QString &identifier) const { return quotedIfReserved(identifier); }

QString SqliteDialect::columnType(const FieldDef &field) const
{
    switch (field.type) {
    case FieldType::Integer:
    case FieldType::AutoInc:
        return u"INTEGER"_s;
    case FieldType::SmallInt:
        return u"SMALLINT"_s;
    case FieldType::Float:
        return u"DOUBLE"_s;
    case FieldType::Money:
        return u"MONEY REAL"_s; // plain MONEY would store 5.0 as a whole number
    case FieldType::Boolean:
        return u"BOOLEAN"_s;
    case FieldType::Date:
        return u"DATE"_s;
    case FieldType::DateTime:
        return u"DATETIME"_s;
    case FieldType::Text:
        return u"VARCHAR(%1)"_s.arg(field.size);
    case FieldType::Memo:
        break;
    }
    return u"TEXT"_s;
}

FieldDef SqliteDialect::fieldType(const QString &declared)
{
    const QString type = declared.toUpper();
    const qsizetype paren = type.indexOf(u'(');
    const QString word = (paren < 0 ? type : type.left(paren)).trimmed();
    const int size = paren < 0 ? 0 : type.mid(paren + 1, type.indexOf(u')', paren) - paren - 1).toInt();
    if (word == "SMALLINT"_L1)
        return {{}, FieldType::SmallInt, 0};
    if (word == "BOOLEAN"_L1)
        return {{}, FieldType::Boolean, 0};
    if (word == "DATE"_L1)
        return {{}, FieldType::Date, 0};
    if (word == "DATETIME"_L1 || word == "TIMESTAMP"_L1)
        return {{}, FieldType::DateTime, 0};
    if (word.startsWith("MONEY"_L1))
        return {{}, FieldType::Money, 0};
    if (word.contains("INT"_L1))
        return {{}, FieldType::Integer, 0};
    if (word.contains("CHAR"_L1) && size > 0)
        return {{}, FieldType::Text, size};
    if (word.contains("CHAR"_L1) || word.contains("TEXT"_L1) || word.contains("CLOB"_L1))
        return {{}, FieldType::Memo, 0};
    return {{}, FieldType::Float, 0};
}

QString SqliteDialect::keyClause(const TableLayout &layout, const IndexDef &index) const
{
    QStringList terms;
    for (const QString &fieldName : index.fieldNames()) {
        const FieldDef *field = layout.field(fieldName);
        QString term = name(field ? field->name : fieldName);
        if (field && isText(field->type) && index.options.testFlag(IndexOption::CaseInsensitive))
            term += " COLLATE NOCASE"_L1;
        if (index.options.testFlag(IndexOption::Descending))
            term += " DESC"_L1;
        terms << term;
    }
    return u'(' + terms.join(", "_L1) + u')';
}

QStringList SqliteDialect::createTable(const TableLayout &layout) const
{
    const QString rowNumber = rowNumberField(layout);
    QStringList lines;
    for (const FieldDef &field : layout.fields) {
        QString line = name(field.name) + u' ' + columnType(field);
        if (field.name == rowNumber)
            line += field.type == FieldType::AutoInc ? " PRIMARY KEY AUTOINCREMENT"_L1 : " PRIMARY KEY"_L1;
        lines << line;
    }
    QLatin1StringView tail(")");
    if (rowNumber.isEmpty() && layout.primary()) {
        lines << "PRIMARY KEY "_L1 + keyClause(layout, *layout.primary());
        // The rows stand in the key's own tree: half the writing for the balance and detail tables. Others are told
        // apart by their row number.
        if (!layout.numberKey().isEmpty())
            tail = ") WITHOUT ROWID"_L1;
    }
    return {u"CREATE TABLE %1 (\n    %2\n%3"_s.arg(name(layout.name), lines.join(",\n    "_L1), tail)};
}

QStringList SqliteDialect::createIndexes(const TableLayout &layout) const
{
    const QString rowNumber = rowNumberField(layout);
    QStringList statements;
    for (const IndexDef &index : layout.indexes) {
        const bool primary = index.options.testFlag(IndexOption::Primary);
        if (primary && (rowNumber.isEmpty() || isPrimaryOver(layout, rowNumber)))
            continue; // the table itself
        statements << u"CREATE %1 %2 ON %3 %4"_s.arg(primary ? u"UNIQUE INDEX"_s : u"INDEX"_s,
                                                     quoted(prefixedIndexName(layout.name, index)),
                                                     name(layout.name), keyClause(layout, index));
    }
    return statements;
}

QStringList SqliteDialect::renameTable(const QString &from, const QString &to) const
{
    return {u"ALTER TABLE %1 RENAME TO %2"_s.arg(name(from), name(to))};
}

QString SqliteDialect::dropIndex(const QString &table, const IndexDef &index) const
{
    return "DROP INDEX "_L1 + quoted(prefixedIndexName(table, index));
}

QString SqliteDialect::converted(const QString &column, FieldType from, const FieldDef &to) const
{
    return convertedColumn(conversions, column, from, to);
}

QStringList SqliteDialect::continueAutoIncrement(const QString &oldTable, const QString &newTable,
                                                 const QString &) const
{
    // SQLite takes no names as parameters here; they come from layouts and are quoted as texts.
    const QString oldName = textLiteral(oldTable);
    const QString newName = textLiteral(newTable);
    return {u"INSERT INTO sqlite_sequence (name, seq) SELECT %1, 0 WHERE NOT EXISTS "
            "(SELECT 1 FROM sqlite_sequence WHERE name = %1)"_s.arg(newName),
            u"UPDATE sqlite_sequence SET seq = max(seq, coalesce((SELECT seq FROM sqlite_sequence WHERE name = "
            u"%1), 0)) "
            "WHERE name = %2"_s.arg(oldName, newName)};
}

QString SqliteDialect::foldCase(const QString &column) const { return column + " COLLATE NOCASE"_L1; }

QString SqliteDialect::orderTerm(const QString &column, bool caseInsensitive, bool descending) const
{
    return (caseInsensitive ? foldCase(column) : column) + (descending ? " DESC"_L1 : ""_L1);
}

QString SqliteDialect::rowIdentity() const { return u"rowid"_s; }

// A cast alone would read "12 eggs" as 12. Plain digits, which are the rule, are told first.
QString SqliteDialect::wholeNumberOf(const QString &text) const
{
    return u"CASE WHEN %1 NOT GLOB '*[^0-9]*' AND length(%1) BETWEEN 1 AND 18 THEN CAST(%1 AS INTEGER) "
           "WHEN trim(%1) GLOB '[-+0-9]*' AND substr(trim(%1), 2) NOT GLOB '*[^0-9]*' AND %1 GLOB '*[0-9]*' "
           "AND (length(ltrim(trim(%1), '-+0')) < %2 OR (length(ltrim(trim(%1), '-+0')) = %2 "
           "AND ltrim(trim(%1), '-+0') <= '%3')) THEN CAST(trim(%1) AS INTEGER) END"_s.arg(text)
               .arg(largestWholeNumber.size())
               .arg(largestWholeNumber);
}

QString SqliteDialect::inNumberList(const QString &column) const
{
    return column + " IN (SELECT value FROM json_each(?))"_L1;
}

// The set of keys is built faster when they come to it in order.
QString SqliteDialect::inStoredOrder(const QString &table, const QString &key, const QString &condition) const
{
    return u"%1 IN (SELECT %1 FROM %2 WHERE %3 ORDER BY %1)"_s.arg(key, table, condition);
}

// LIKE would ignore the case of letters, GLOB does not.
QString SqliteDialect::like(const QString &column) const { return column + " GLOB ?"_L1; }

QString SqliteDialect::likePattern(const QString &pattern) const
{
    QString glob;
    for (const QChar c : pattern) {
        if (c == u'%')
            glob += u'*';
        else if (c == u'_')
            glob += u'?';
        else if (c == u'*' || c == u'?' || c == u'[')
            glob += u'[' + QString(c) + u']';
        else
            glob += c;
    }
    return glob;
}

} // namespace Engine
