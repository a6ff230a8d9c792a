#include "controls/linemodel.h"

namespace Tallymere {

using Engine::TableState;

LineModel::LineModel(Engine::Table &lines, const QList<GridColumn> &columns, const Guard &guard, QObject *parent)
    : TableModel(lines, columns, guard, parent)
    , m_lines(lines)
{
    connect(&lines, &Engine::DataSet::stateChanged, this, &LineModel::takeList);
    connect(&lines, &Engine::DataSet::fieldChanged, this, [this] { updateRow(currentRow()); });
    takeList();
}

int LineModel::currentRow() const
{
    if (!m_lines.isOpen())
        return -1;
    return m_lines.state() == TableState::Insert ? m_lines.recordCount() : m_lines.recordIndex();
}

Qt::ItemFlags LineModel::flags(const QModelIndex &index) const
{
    return TableModel::flags(index) | Qt::ItemIsEditable;
}

int LineModel::dataRows() const { return TableModel::dataRows() + (m_lines.state() == TableState::Insert ? 1 : 0); }

Engine::Value LineModel::cellValue(int row, int field) const
{
    if (m_lines.isEditing() && row == currentRow())
        return m_lines.value(field);
    return row < m_lines.recordCount() ? m_lines.valueAt(row, field) : Engine::Value();
}

LineSelection::LineSelection(QAbstractItemModel *model, Mover mover, QObject *parent)
    : QItemSelectionModel(model, parent)
    , m_mover(std::move(mover))
{
}

void LineSelection::setCurrentIndex(const QModelIndex &index, QItemSelectionModel::SelectionFlags command)
{
    if (m_moving)
        return;
    if (index.isValid() && !m_mover(index.row()))
        return;
    // Leaving the row may have written or dropped it, so the index is made anew.
    const int row = std::min(index.row(), model()->rowCount() - 1);
    m_moving = true;
    QItemSelectionModel::setCurrentIndex(index.isValid() ? model()->index(row, index.column()) : index, command);
    m_moving = false;
}

void LineSelection::select(const QModelIndex &index, QItemSelectionModel::SelectionFlags command)
{
    if (m_moving || index.row() == currentIndex().row())
        QItemSelectionModel::select(index, command);
}

void LineSelection::select(const QItemSelection &selection, QItemSelectionModel::SelectionFlags command)
{
    const bool onRow = selection.isEmpty() || selection.first().top() == currentIndex().row();
    if (m_moving || onRow)
        QItemSelectionModel::select(selection, command);
}

} // namespace Tallymere
