#include "transactions/screens/pastedrowsgrid.h"

#include <algorithm>

namespace Tallymere {

namespace {
constexpr int lineColumn = 1; // the first of the line's own
} // namespace

PastedRowsGrid::PastedRowsGrid(QWidget *parent)
    : RowsGrid(parent)
{
}

void PastedRowsGrid::setLineColumns(QList<GridColumn> columns)
{
    constexpr int widestText = 210;
    for (GridColumn &column : columns)
        column.width = std::min(column.width, widestText);
    columns.prepend({.field = {}, .title = tr("Row"), .width = 50, .alignment = Qt::AlignRight, .setOff = true});
    columns.append({.field = {}, .title = tr("Remark"), .width = 330, .takesSurplus = true});
    setColumns(columns);
}

void PastedRowsGrid::showLines(const std::vector<PastedRows::Line> &lines)
{
    m_refused.clear();
    std::vector<QStringList> rows;
    int firstRefused = -1;
    for (const PastedRows::Line &line : lines) {
        const auto row = static_cast<int>(rows.size());
        const bool isRefused = !line.refusal.isEmpty();
        rows.push_back(QStringList(QString::number(line.row)) + line.shown
                       + QStringList(isRefused ? line.refusal : line.remark));
        if (!isRefused)
            continue;
        if (firstRefused < 0)
            firstRefused = row;
        const int column = columnOf(line.refusedField);
        m_refused.insert(row, column < lineColumn ? static_cast<int>(columns().size()) - 1 : column);
    }
    setRows(std::move(rows));
    if (firstRefused > 0)
        setCurrentIndex(model()->index(firstRefused, 0));
}

bool PastedRowsGrid::isRefused(const QModelIndex &cell) const
{
    return m_refused.value(cell.row(), -1) == cell.column();
}

} // namespace Tallymere
