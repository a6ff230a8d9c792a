#include "import/importablerows.h"

#include "data/fields.h"
#include "engine/store/dialect.h"

#include <algorithm>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

using Columns = std::vector<const ImportColumn *>;

// One for each field: of a key the number or name.
Columns columnsOf(const ImportKind &kind)
{
    Columns columns;
    for (const ImportColumn &column : kind.columns) {
        const auto same = std::ranges::find_if(
            columns, [&](const ImportColumn *other) { return other->target == column.target; });
        if (same == columns.end())
            columns.push_back(&column);
        else if (column.lookup && !(*same)->lookup)
            *same = &column;
    }
    return columns;
}

QString selection(const Engine::Dialect &dialect, const ImportKind &kind, const Columns &columns)
{
    QStringList expressions;
    for (const ImportColumn *column : columns) {
        const QString alias = column->level == ImportColumn::Level::Line ? u"l."_s : u"h."_s;
        const QString field = alias + dialect.name(column->target);
        expressions << (column->lookup ? u"(SELECT n.%1 FROM %2 n WHERE n.%3 = %4)"_s.arg(
                            dialect.name(column->lookup->nameField), dialect.name(column->lookup->table),
                            dialect.name(column->lookup->keyField), field)
                                       : field);
    }
    const QString key = dialect.name(kind.keyField);
    QString sql =
        u"SELECT %1 FROM %2 h"_s.arg(expressions.join(", "_L1), dialect.name(kind.keyTables.constFirst()));
    if (kind.hasLines())
        sql += u" JOIN %1 l ON l.%2 = h.%2"_s.arg(dialect.name(kind.lineTable), key);
    sql += u" ORDER BY h.%1"_s.arg(key);
    return kind.hasLines() ? sql + u", l."_s + dialect.name(Fields::Seq) : sql;
}

} // namespace

void writeImportable(Engine::Database &database, const ImportKind &kind, RowWriter &writer, Progress &progress)
{
    const Columns columns = columnsOf(kind);
    for (const ImportColumn *column : columns)
        writer.title(column->field, column->type == Engine::FieldType::Money);
    writer.endRecord();
    Engine::Connection &connection = database.connection();
    const Engine::StatementPtr row = connection.prepare(selection(connection.dialect(), kind, columns));
    progress.start(0);
    while (row->next()) {
        for (size_t i = 0; i < columns.size(); ++i)
            writer.field(row->valueAt(static_cast<int>(i), columns[i]->type));
        writer.endRecord();
        progress.step();
    }
    writer.flush();
}

} // namespace Tallymere
