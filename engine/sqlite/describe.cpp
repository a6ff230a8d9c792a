#include "engine/sqlite/connection.h"
#include "engine/store/indexnames.h"
#include "engine/store/reservedwords.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

// What a file holds, read back from SQLite's own catalogue into the engine's layouts.

namespace Engine {

namespace {

struct StoredColumn
{
    FieldDef field;
    int keyPosition = 0; // from 1; 0 when it is not part of the declared key
};

bool isAutoIncrement(sqlite3 *db, const QString &table, const QString &column)
{
    int autoIncrement = 0;
    sqlite3_table_column_metadata(db, nullptr, table.toUtf8().constData(), column.toUtf8().constData(), nullptr,
                                  nullptr, nullptr, nullptr, &autoIncrement);
    return autoIncrement != 0;
}

QList<StoredColumn> columnsOf(SqliteConnection &connection, const QString &table)
{
    QList<StoredColumn> columns;
    const StatementPtr statement = connection.prepare(u"SELECT name, type, pk FROM pragma_table_info(?)"_s);
    statement->bindText(0, table);
    while (statement->next()) {
        StoredColumn column{SqliteDialect::fieldType(statement->textAt(1)), static_cast<int>(statement->intAt(2))};
        column.field.name = statement->textAt(0);
        if (column.keyPosition > 0 && isAutoIncrement(connection.handle(), table, column.field.name))
            column.field.type = FieldType::AutoInc;
        columns << column;
    }
    return columns;
}

IndexDef indexOf(SqliteConnection &connection, const QString &stored)
{
    IndexDef index;
    QStringList fields;
    const StatementPtr statement = connection.prepare(
        u"SELECT name, \"desc\", coll FROM pragma_index_xinfo(?) WHERE key = 1 ORDER BY seqno"_s);
    statement->bindText(0, stored);
    while (statement->next()) {
        fields << statement->textAt(0);
        if (statement->intAt(1) != 0)
            index.options |= IndexOption::Descending;
        if (statement->textAt(2).compare("NOCASE"_L1, Qt::CaseInsensitive) == 0)
            index.options |= IndexOption::CaseInsensitive;
    }
    index.fields = fields.join(u';');
    return index;
}

// The declared key, when the table has no index of the engine's that is the primary one.
IndexDef declaredKey(SqliteConnection &connection, const QString &table, const QList<StoredColumn> &columns)
{
    const StatementPtr statement =
        connection.prepare(u"SELECT name FROM pragma_index_list(?) WHERE origin = 'pk'"_s);
    statement->bindText(0, table);
    if (statement->next()) {
        IndexDef index = indexOf(connection, statement->textAt(0));
        index.options |= IndexOption::Primary;
        return index;
    }
    for (const StoredColumn &column : columns) {
        if (column.keyPosition == 1)
            return {QString(), column.field.name, IndexOption::Primary};
    }
    return {};
}

} // namespace

QString SqliteConnection::spelling(const QString &table)
{
    const StatementPtr statement =
        prepare(u"SELECT name FROM sqlite_master WHERE type = 'table' AND name = ? COLLATE NOCASE"_s);
    statement->bindText(0, table);
    return statement->next() ? statement->textAt(0) : QString();
}

std::optional<TableLayout> SqliteConnection::describe(const QString &table)
{
    TableLayout layout;
    layout.name = spelling(table);
    if (layout.name.isNull())
        return std::nullopt;
    const QList<StoredColumn> columns = columnsOf(*this, layout.name);
    for (const StoredColumn &column : columns)
        layout.fields << column.field;

    const StatementPtr statement = prepare(u"SELECT name FROM sqlite_master WHERE type = 'index' AND tbl_name = ? "
                                           "COLLATE NOCASE AND sql IS NOT NULL ORDER BY rowid"_s);
    statement->bindText(0, layout.name);
    while (statement->next()) {
        const QString name = indexNameFromPrefixed(layout.name, statement->textAt(0));
        if (name.isNull())
            continue;
        IndexDef index = indexOf(*this, statement->textAt(0));
        index.name = name;
        if (name.isEmpty())
            index.options |= IndexOption::Primary;
        layout.indexes << index;
    }
    if (!layout.primary()) {
        const IndexDef key = declaredKey(*this, layout.name, columns);
        if (!key.fields.isEmpty())
            layout.indexes.prepend(key);
    }
    return layout;
}

} // namespace Engine
