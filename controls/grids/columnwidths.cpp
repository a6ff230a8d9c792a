#include "controls/grids/columnwidths.h"

#include "controls/grids/datagrid.h"
#include "controls/windows/screenmetrics.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace Tallymere {

QString columnWidths(const DataGrid &grid)
{
    QStringList widths;
    const QList<GridColumn> &columns = grid.columns();
    for (int i = 0; i < columns.size(); ++i) {
        if (i == grid.surplusColumn())
            continue;
        widths << columns[i].field + u'=' + QString::number(grid.wantedWidth(i) / fontFactor(&grid), 'f', 2);
    }
    return widths.join(u' ');
}

namespace {

// All widths are kept once the user has changed one; the others are still those that the grid comes with.
void setWidth(DataGrid &grid, int column, double pixels)
{
    if (qRound(pixels) != grid.columns()[column].width)
        grid.setWantedWidth(column, qRound(pixels * fontFactor(&grid)));
}

} // namespace

void setColumnWidths(DataGrid &grid, const QString &text)
{
    constexpr double widest = 5000;
    const QStringList widths = text.split(u' ', Qt::SkipEmptyParts);
    for (const QString &width : widths) {
        const int column = grid.columnOf(width.section(u'=', 0, 0));
        const double pixels = width.section(u'=', 1).toDouble();
        if (column >= 0 && column != grid.surplusColumn() && pixels >= 1 && pixels <= widest)
            setWidth(grid, column, pixels);
    }
}

} // namespace Tallymere
