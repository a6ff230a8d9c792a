#include "insight/screens/buyingmodel.h"

#include "base/formats.h"
#include "base/rounding.h"
#include "controls/windows/look.h"
#include "data/fields.h"

#include <QFont>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

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
    : GroupedModel(gridColumns(), parent)
    , m_list(list)
{
}

void BuyingModel::listChanged()
{
    setItems(m_list.size(), [this](int item) { return m_list.beginsVendor(item); });
}

QString BuyingModel::headingText(int firstItem) const
{
    const ItemToBuy &first = m_list.row(firstItem).item;
    return first.vendor == 0 ? tr("No vendor yet") : u"%1 %2"_s.arg(first.vendorNo, first.vendorName);
}

QVariant BuyingModel::itemData(int item, int column, int role) const
{
    const BuyingList::Row &row = m_list.row(item);
    switch (role) {
    case Qt::DisplayRole:
        return textOf(row, column);
    case Qt::EditRole:
        return column == Quantity && row.quantity() == 0 ? QString() : textOf(row, column);
    case Qt::FontRole:
        return column == Quantity ? bold() : QVariant();
    case Qt::BackgroundRole: // the proposal beside it says the same
        return noteOf(column, item) == CellNote::Lacking
            ? QVariant(Look(QGuiApplication::palette()).colour(Look::Role::NoticeGround))
            : QVariant();
    case cellNoteRole:
        return static_cast<int>(noteOf(column, item));
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

} // namespace Tallymere
