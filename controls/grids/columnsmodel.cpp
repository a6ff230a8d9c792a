#include "controls/grids/columnsmodel.h"

#include <utility>

namespace Tallymere {

ColumnsModel::ColumnsModel(QList<GridColumn> columns, QObject *parent)
    : QAbstractTableModel(parent)
    , m_columns(std::move(columns))
{
}

int ColumnsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ColumnsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= m_columns.size())
        return {};
    if (role == Qt::DisplayRole)
        return m_columns[section].title;
    return role == Qt::TextAlignmentRole ? side(section) : QVariant();
}

} // namespace Tallymere
