#include "insight/screens/buyingmodel.h"

#include "base/formats.h"
#include "base/rounding.h"
#include "controls/windows/look.h"
#include "data/fields.h"

#include <algorithm>
#include <QFont>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int heading = -1;

QString quantityText(double quantity)
{
    static const Engine::FieldFormat format = quantityFormat();
    return format.display(Engine::Value(quantity));
}

QFont bold()
{
    QFont font;
    font.setBold(true);
    return font;
}

QString textOf(const BuyingList::Row &row, int column)
{
    const ItemToBuy &item = row.item;
    switch (column) {
    case BuyingModel::ItemNo:
        return item.itemNo;
    case BuyingModel::Description:
        return item.description;
    case BuyingModel::UsePerWeek:
        return quantityText(toTenth(item.usePerWeek)); // as the days left
    case BuyingModel::OnHand:
        return quantityText(item.onHand);
    case BuyingModel::Unposted:
        return item.unposted == 0 ? QString() : quantityText(item.unposted);
    case BuyingModel::DaysLeft:
        return quantityText(item.daysLeft);
    case BuyingModel::LastCost:
        return item.lastCost ? currencyText(*item.lastCost) : QString();
    case BuyingModel::Proposed:
        return item.proposed > 0 ? quantityText(item.proposed) : QString();
    default:
        return row.quantity() > 0 ? quantityText(row.quantity()) : QString();
    }
}

bool isNegative(const ItemToBuy &item, int column)
{
    return (column == BuyingModel::OnHand && item.onHand < 0)
        || (column == BuyingModel::Unposted && item.unposted < 0);
}

} // namespace

QList<GridColumn> BuyingModel::gridColumns()
{
    return {{Fields::ItemNo, tr("Item no."), 90},
            {.field = Fields::ItemDescription, .title = tr("Description"), .width = 240, .takesSurplus = true},
            {BuyingFields::UsePerWeek, tr("Use a week"), 90, Qt::AlignRight},
            {Fields::QtyOnHand, tr("On hand"), 80, Qt::AlignRight},
            {BuyingFields::Unposted, tr("Unposted"), 80, Qt::AlignRight},
            {BuyingFields::DaysLeft, tr("Days left"), 80, Qt::AlignRight},
            {BuyingFields::LastCost, tr("Last cost"), 80, Qt::AlignRight},
            {BuyingFields::Proposed, tr("Proposed"), 80, Qt::AlignRight},
            {Fields::Quantity, tr("To buy"), 80, Qt::AlignRight}};
}

BuyingModel::BuyingModel(const BuyingList &list, QObject *parent)
    : QAbstractTableModel(parent)
    , m_list(list)
{
}

void BuyingModel::listChanged()
{
    beginResetModel();
    m_items.clear();
    for (int item = 0; item < m_list.size(); ++item) {
        if (m_list.beginsVendor(item))
            m_items.push_back(heading);
        m_items.push_back(item);
    }
    endResetModel();
}

void BuyingModel::rowChanged(int item)
{
    const int row = rowOf(item);
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

int BuyingModel::rowOf(int item) const
{
    const auto found = std::ranges::find(m_items, item);
    return item < 0 || found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

std::vector<int> BuyingModel::headings() const
{
    std::vector<int> rows;
    for (int row = 0; row < rowCount(); ++row)
        if (m_items[static_cast<size_t>(row)] == heading)
            rows.push_back(row);
    return rows;
}

int BuyingModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

int BuyingModel::columnCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant BuyingModel::headingData(int row, int role) const // over all columns
{
    const ItemToBuy &first = m_list.row(m_items[static_cast<size_t>(row) + 1]).item;
    switch (role) {
    case Qt::DisplayRole:
        return first.vendor == 0 ? tr("No vendor yet") : u"%1 %2"_s.arg(first.vendorNo, first.vendorName);
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

QVariant BuyingModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int item = itemAt(index.row());
    if (item == heading)
        return index.column() == 0 ? headingData(index.row(), role) : QVariant();
    const BuyingList::Row &row = m_list.row(item);
    switch (role) {
    case Qt::DisplayRole:
        return textOf(row, index.column());
    case Qt::EditRole:
        return index.column() == Quantity && row.quantity() == 0 ? QString() : textOf(row, index.column());
    case Qt::TextAlignmentRole:
        return QVariant(m_columns[index.column()].alignment | Qt::AlignVCenter);
    case Qt::FontRole:
        return index.column() == Quantity ? bold() : QVariant();
    case Qt::BackgroundRole: // the proposal beside it says the same
        return noteOf(index.column(), item) == CellNote::Lacking
            ? QVariant(Look(QGuiApplication::palette()).colour(Look::Role::NoticeGround))
            : QVariant();
    case cellNoteRole:
        return static_cast<int>(noteOf(index.column(), item));
    default:
        return {};
    }
}

CellNote BuyingModel::noteOf(int column, int item) const
{
    if (isNegative(m_list.row(item).item, column))
        return CellNote::Negative;
    return column == DaysLeft && m_list.isShort(item) ? CellNote::Lacking : CellNote::None;
}

QVariant BuyingModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= ColumnCount)
        return {};
    if (role == Qt::DisplayRole)
        return m_columns[section].title;
    if (role == Qt::TextAlignmentRole)
        return QVariant(m_columns[section].alignment | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags BuyingModel::flags(const QModelIndex &index) const
{
    if (itemAt(index.row()) == heading)
        return Qt::NoItemFlags;
    return QAbstractTableModel::flags(index) | (index.column() == Quantity ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

} // namespace Tallymere
