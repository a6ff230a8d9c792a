#include "controls/grids/groupedmodel.h"

#include "controls/windows/look.h"

#include <algorithm>
#include <QFont>
#include <QGuiApplication>

namespace Tallymere {

namespace {

constexpr int heading = -1;

} // namespace

void GroupedModel::setItems(int count, const std::function<bool(int item)> &beginsGroup)
{
    beginResetModel();
    m_items.clear();
    for (int item = 0; item < count; ++item) {
        if (beginsGroup(item))
            m_items.push_back(heading);
        m_items.push_back(item);
    }
    endResetModel();
}

void GroupedModel::rowChanged(int item)
{
    const int row = rowOf(item);
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

int GroupedModel::rowOf(int item) const
{
    const auto found = std::ranges::find(m_items, item);
    return item < 0 || found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

std::vector<int> GroupedModel::headings() const
{
    std::vector<int> rows;
    for (int row = 0; row < rowCount(); ++row)
        if (itemAt(row) == heading)
            rows.push_back(row);
    return rows;
}

int GroupedModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QFont GroupedModel::bold()
{
    QFont font;
    font.setBold(true);
    return font;
}

QVariant GroupedModel::headingData(int row, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return headingText(itemAt(row + 1));
    case Qt::FontRole:
        return bold();
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::BackgroundRole:
        return Look(QGuiApplication::palette()).colour(Look::Role::Head);
    default:
        return {};
    }
}

QVariant GroupedModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int item = itemAt(index.row());
    if (item == heading)
        return index.column() == 0 ? headingData(index.row(), role) : QVariant();
    return role == Qt::TextAlignmentRole ? side(index.column()) : itemData(item, index.column(), role);
}

Qt::ItemFlags GroupedModel::flags(const QModelIndex &index) const
{
    if (itemAt(index.row()) == heading)
        return Qt::NoItemFlags;
    return ColumnsModel::flags(index) | (isEditable(index.column()) ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

} // namespace Tallymere
