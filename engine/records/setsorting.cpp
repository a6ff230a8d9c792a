#include "engine/records/setsorting.h"

#include "engine/records/dataset.h"
#include "engine/records/setfiltering.h"
#include "engine/records/tableprivate.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/values/layout.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

QStringList sortedNames(const DataSet &set)
{
    if (set.sorting().field.isEmpty())
        return {};
    const Field &shown = set.field(set.sorting().field);
    const QString names = shown.kind == FieldKind::Calculated ? shown.sortedBy : shown.name;
    return names.split(u';', Qt::SkipEmptyParts);
}

} // namespace

SetSorting::SetSorting(const DataSet &set, const SetFiltering &filtering)
    : m_set(set)
    , m_filtering(filtering)
    , m_dialect(set.m_database.connection().dialect())
    , m_names(sortedNames(set))
    , m_isDescending(set.m_sorting.descending)
{
}

void SetSorting::applyTo(SetScope &scope) const
{
    if (m_names.isEmpty())
        return;
    scope.firstSource.clear();
    if (scope.inParts && (sortByIndex(scope) || sortByLookup(scope)))
        return;
    scope.byIndex = scope.inParts = false;
    sortAll(scope);
}

// Rows that agree are in the order of the index as well then, and not in the set's own.
bool SetSorting::sortByIndex(SetScope &scope) const
{
    const TableLayout &layout = *m_set.storedLayout();
    const QString key = layout.numberKey().join(u';');
    const auto hasOrder = [&](const IndexDef &index) {
        const QStringList names = index.fieldNames();
        return names.mid(0, m_names.size()).join(u';').compare(m_names.join(u';'), Qt::CaseInsensitive) == 0
            && names.constLast().compare(key, Qt::CaseInsensitive) == 0;
    };
    const auto index = std::find_if(layout.indexes.begin(), layout.indexes.end(), hasOrder);
    if (index == layout.indexes.end())
        return false;
    scope.order.clear();
    for (const SqlColumn &column : indexColumns(layout, *index, m_dialect))
        scope.order.append({column, m_isDescending});
    return true;
}

// The first rows are those of the first rows of the other table. A file stops at so many of each by itself, a server is told.
bool SetSorting::sortByLookup(SetScope &scope) const
{
    const Field &field = m_set.field(m_names.constFirst());
    const QList<OrderTerm> within = orderOfOne(field.lookup, scope.keyColumns.constFirst());
    if (field.kind == FieldKind::Lookup
        && m_filtering.fixes(field.lookup.keyField)) { // the same is looked up to all
        scope.order = within.sliced(1);
        return true;
    }
    const QString rows = scope.source;
    if (!join(scope, field))
        return false;
    // Bounds in place of an equation: with an equation a server may choose to walk through the table in the order of its key,
    // and comes to its end where one of theirs has no rows. A limit that it does not know: one that is above the number of rows that
    // it expects would have it sort them all.
    const QString firstRowsOfOne =
        u"LATERAL (SELECT t.* FROM %1 WHERE %2 >= %3 AND %2 <= %3%4 LIMIT (SELECT %5)) t"_s
            .arg(rows, within.constFirst().column.sql, theirKey(field), orderBy(m_dialect, within))
            .arg(m_filtering.mostGoneOver());
    scope.firstSource = m_dialect.name(field.lookup.table) + " s CROSS JOIN "_L1
        + m_dialect.variant(rows + " ON "_L1 + matchOf(field), firstRowsOfOne);
    scope.order = {termOf(scope.joinedColumn, field), {{theirKey(field)}, m_isDescending}};
    scope.order += within;
    scope.groups = {rows, within};
    return true;
}

// Rows to which the same is looked up are in the order of the first index that has these together and in some order.
QList<OrderTerm> SetSorting::orderOfOne(const Lookup &lookup, const QString &key) const
{
    const TableLayout &layout = *m_set.storedLayout();
    const auto ordersThem = [&lookup](const IndexDef &index) {
        const QStringList names = index.fieldNames();
        return names.size() > 1 && names.constFirst().compare(lookup.keyField, Qt::CaseInsensitive) == 0;
    };
    const auto index = std::ranges::find_if(layout.indexes, ordersThem);
    QList<SqlColumn> columns{{"t."_L1 + m_dialect.name(lookup.keyField)}};
    if (index != layout.indexes.end())
        columns = indexColumns(layout, *index, m_dialect);
    if (columns.constLast().sql != key)
        columns.append({key});
    QList<OrderTerm> terms;
    for (const SqlColumn &column : std::as_const(columns))
        terms.append({column, m_isDescending});
    return terms;
}

// A server has better ways to find what is looked up than a look-up for each row; a file has not.
void SetSorting::sortAll(SetScope &scope) const
{
    const bool isOnServer = m_dialect.variant(u"file"_s, u"server"_s) == u"server"_s;
    QList<OrderTerm> terms;
    for (const QString &name : m_names) {
        const Field &field = m_set.field(name);
        const bool isJoined = isOnServer && m_names.size() == 1 && join(scope, field);
        terms.append(termOf(isJoined ? scope.joinedColumn : columnOf(m_dialect, field), field));
    }
    scope.order = terms + scope.order;
}

OrderTerm SetSorting::termOf(const QString &column, const Field &field) const
{
    return {{column, isText(field.type) && !m_set.sortsByCase(field)}, m_isDescending};
}

bool SetSorting::join(SetScope &scope, const Field &field) const
{
    const Lookup &lookup = field.lookup;
    const std::optional<TableLayout> layout =
        field.kind == FieldKind::Lookup ? m_set.m_database.connection().layoutOf(lookup.table) : std::nullopt;
    if (!layout || layout->primaryFields().join(u';').compare(lookup.tableKey, Qt::CaseInsensitive) != 0)
        return false;
    scope.source += u" LEFT OUTER JOIN %1 s ON %2"_s.arg(m_dialect.name(lookup.table), matchOf(field));
    scope.joinedField = field.name;
    scope.joinedColumn = "s."_L1 + m_dialect.name(lookup.resultField);
    return true;
}

QString SetSorting::theirKey(const Field &field) const { return "s."_L1 + m_dialect.name(field.lookup.tableKey); }

QString SetSorting::matchOf(const Field &field) const
{
    return theirKey(field) + " = t."_L1 + m_dialect.name(field.lookup.keyField);
}

} // namespace Engine
