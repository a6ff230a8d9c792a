#include "controls/grids/listsort.h"

#include "controls/windows/screenmetrics.h"

#include <QHeaderView>

namespace Tallymere {

using Engine::DataSet;
using Engine::Field;

namespace {

// The field that the order of a column begins with.
QString leadingField(const Field &field)
{
    return field.kind == Engine::FieldKind::Calculated ? field.sortedBy.section(u';', 0, 0) : field.name;
}

} // namespace

ListSort::ListSort(ListGrid &grid, const Guard &guard)
    : QObject(&grid)
    , m_grid(grid)
    , m_guard(guard)
    , m_set(grid.tableModel()->dataSet())
{
    connect(grid.horizontalHeader(), &QHeaderView::sectionClicked, this, &ListSort::sortBy);
    connect(&m_set, &DataSet::listChanged, this, &ListSort::showArrow);
    showArrow();
}

int ListSort::column() const { return m_shown.column; }

bool ListSort::canSortBy(int column) const
{
    const QList<GridColumn> &columns = m_grid.columns();
    return column >= 0 && column < columns.size() && m_set.canSortBy(m_set.fieldIndex(columns[column].field));
}

void ListSort::sortBy(int column)
{
    if (canSortBy(column))
        m_guard.runWhenFree([this, column] {
            const WaitCursor hourglass;
            sort({column, column == m_shown.column && !m_shown.descending});
        });
    showArrow(); // the title has turned it by itself
}

void ListSort::sort(const Shown &wanted)
{
    if (wanted == ofOwnOrder())
        m_set.setSorting({});
    else
        m_set.setSorting({m_grid.columns()[wanted.column].field, wanted.descending});
}

ListSort::Shown ListSort::ofOwnOrder() const
{
    const QList<Engine::OrderedField> order = m_set.orderedFields();
    for (int column = 0; column < m_grid.columns().size() && !order.isEmpty(); ++column) {
        const int field = m_set.fieldIndex(m_grid.columns()[column].field);
        if (field >= 0
            && leadingField(m_set.field(field)).compare(order.constFirst().name, Qt::CaseInsensitive) == 0)
            return {column, order.constFirst().descending};
    }
    return {};
}

void ListSort::showArrow()
{
    if (!m_set.isOpen())
        return;
    const Engine::Sorting &sorting = m_set.sorting();
    m_shown = sorting.field.isEmpty() ? ofOwnOrder() : Shown{m_grid.columnOf(sorting.field), sorting.descending};
    QHeaderView &titles = *m_grid.horizontalHeader();
    titles.setSortIndicatorShown(m_shown.column >= 0);
    titles.setSortIndicator(m_shown.column, m_shown.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    Q_EMIT changed();
}

} // namespace Tallymere
