#include "controls/grids/linemodel.h"

namespace Tallymere {

using Engine::TableState;

LineModel::LineModel(Engine::Table &lines, const QList<GridColumn> &columns, LineOptions options,
                     const Guard &guard, QObject *parent)
    : TableModel(lines, columns, guard, parent)
    , m_lines(lines)
    , m_options(std::move(options))
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

bool LineModel::isUntouched() const { return m_lines.state() == TableState::Insert && !m_lines.isModified(); }

bool LineModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    return role == Qt::EditRole && flags(index).testFlag(Qt::ItemIsEditable) && enterText
        && enterText(index, value.toString());
}

Qt::ItemFlags LineModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = TableModel::flags(index);
    flags.setFlag(Qt::ItemIsEditable, index.isValid() && !m_readOnly && takesText(index.column()));
    return flags;
}

bool LineModel::takesText(int column) const
{
    return !m_options.fixed.contains(columns()[column].field)
        && !m_options.behind.contains(columns()[column].field);
}

std::optional<LineOffer> LineModel::offerFor(const QModelIndex &cell) const
{
    const bool inHand = m_options.offer && cell.isValid() && m_lines.isEditing() && cell.row() == currentRow();
    std::optional<LineOffer> offer;
    if (inHand)
        attempt([&] { offer = m_options.offer(columns()[cell.column()].field); });
    return offer;
}

QVariant LineModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::DisplayRole || role == cellQuietRole) {
        if (const std::optional<LineOffer> offer = offerFor(index))
            return role == Qt::DisplayRole ? QVariant(offer->shown) : QVariant(true);
    }
    return TableModel::data(index, role);
}

void LineModel::setReadOnly(bool readOnly) { m_readOnly = readOnly; }

bool LineModel::stopsAt(int column, Way way) const
{
    const QString &field = columns()[column].field;
    if (m_options.behind.contains(field))
        return false;
    const bool isPassed =
        m_options.passedByEnter.contains(field) || (m_options.passedNow && m_options.passedNow(field));
    return way != Way::Enter || !isPassed;
}

QModelIndex LineModel::neighbour(const QModelIndex &cell, Way way) const
{
    const int step = way == Way::Backtab ? -1 : 1;
    for (int column = cell.column() + step; column >= 0 && column < columnCount(); column += step) {
        if (stopsAt(column, way))
            return index(cell.row(), column);
    }
    int first = way == Way::Backtab ? columnCount() - 1 : 0;
    while (first > 0 && !stopsAt(first, way))
        --first;
    return index(cell.row() + step, first);
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
