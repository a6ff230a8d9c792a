#include "engine/records/setfiltering.h"

#include "engine/records/datasetprivate.h"
#include "engine/records/tableprivate.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/values/layout.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

// As it sorts.
QString sortedAs(const SqlColumn &column)
{
    return column.caseInsensitive ? column.sql + " folded"_L1 : column.sql;
}

} // namespace

SetFiltering::SetFiltering(const DataSet &set)
    : m_dialect(set.m_database.connection().dialect())
    , m_layout(set.storedLayout())
{
    if (!set.m_filtered)
        return;
    const DataSetReader reader(set);
    const FilterExpression filter(set.m_filter);
    m_condition = reader.condition(filter);
    for (const FilterExpression::Fixed &fixed : filter.fixedFields(m_dialect, reader.columns())) {
        const Field &field = set.field(fixed.field);
        const bool isSame = !isText(field.type); // texts that agree may be written differently
        if (field.kind == FieldKind::Data && isSame)
            m_fixed.insert(columnOf(m_dialect, field), fixed.condition);
    }
}

bool SetFiltering::fixes(const QString &field) const { return m_fixed.contains("t."_L1 + m_dialect.name(field)); }

int SetFiltering::mostGoneOver() const { return m_condition.isEmpty() ? SetScope::mostFirstRows : 10'000; }

void SetFiltering::applyTo(SetScope &scope, bool isLongInOrder) const
{
    scope.condition += m_condition;
    if (scope.condition.isEmpty())
        return;
    const QString first = std::exchange(scope.firstSource, {});
    scope.inParts = false;
    scope.groups.reset();
    if (isLongInOrder && !m_condition.isEmpty())
        guessFirst(scope, first);
}

// With the values of an index's beginning the rows are gone over from there.
void SetFiltering::guessFirst(SetScope &scope, const QString &first) const
{
    const QStringList beginning = first.isEmpty() ? longestBeginning(scope) : QStringList();
    SqlCondition within;
    for (const QString &column : beginning)
        within += m_fixed.value(column);
    QList<OrderTerm> order = scope.order;
    order.removeIf([&](const OrderTerm &term) { return beginning.contains(term.column.sql); });
    if (order.isEmpty())
        order.append(scope.order.constLast());
    const QString table = m_dialect.name(m_layout->name) + " t"_L1;
    scope.firstSource = u"(SELECT t.* FROM %1%2%3 LIMIT %4) t%5"_s.arg(
        first.isEmpty() ? scope.source : first, within.isEmpty() ? QString() : " WHERE "_L1 + within.text,
        orderBy(m_dialect, order), QString::number(mostGoneOver()), scope.source.sliced(table.size()));
    scope.firstParameters = within.parameters;
    scope.mayFallShort = true;
}

QStringList SetFiltering::longestBeginning(const SetScope &scope) const
{
    QStringList longest;
    for (const IndexDef &index : m_layout->indexes) {
        const QStringList beginning = beginningOf(index, scope);
        if (beginning.size() > longest.size())
            longest = beginning;
    }
    return longest;
}

// The key may stand at the end of the order alone: few rows agree in all that comes before it.
QStringList SetFiltering::beginningOf(const IndexDef &index, const SetScope &scope) const
{
    QStringList beginning;
    QStringList rest;
    for (const SqlColumn &column : indexColumns(*m_layout, index, m_dialect))
        (rest.isEmpty() && m_fixed.contains(column.sql) ? beginning : rest) << sortedAs(column);
    QStringList order;
    for (const OrderTerm &term : scope.order) {
        if (!beginning.contains(term.column.sql))
            order << sortedAs(term.column);
    }
    return rest == order || rest + scope.keyColumns == order ? beginning : QStringList();
}

} // namespace Engine
