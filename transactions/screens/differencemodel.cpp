#include "transactions/screens/differencemodel.h"

#include "base/formats.h"
#include "controls/grids/cellnote.h"
#include "data/fields.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

QList<GridColumn> DifferenceModel::gridColumns()
{
    return {{Fields::ItemNo, tr("Item No"), 90},
            {Fields::ItemDescription, tr("Item"), 260},
            {u"Difference"_s, tr("Difference"), 90, Qt::AlignRight},
            {Fields::UnitCost, tr("Unit Cost"), 80, Qt::AlignRight},
            {u"Value"_s, tr("Value"), 90, Qt::AlignRight},
            {.field = u"Bar"_s, .title = tr("Where the money is"), .width = 240, .takesSurplus = true}};
}

DifferenceModel::DifferenceModel(const CountDifferences &differences, QObject *parent)
    : ColumnsModel(gridColumns(), parent)
    , m_differences(differences)
{
}

int DifferenceModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_differences.items().size());
}

QString DifferenceModel::text(const CountDifference &item, int column)
{
    switch (column) {
    case ItemNo:
        return item.itemNo;
    case Item:
        return item.description;
    case Quantity:
        return quantityText(item.quantity);
    case UnitCost:
        return currencyText(item.unitCost);
    case Value:
        return currencyText(item.value);
    default: // a picture
        return {};
    }
}

QVariant DifferenceModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const CountDifference &item = at(index.row());
    const bool isFigure = index.column() == Quantity || index.column() == Value;
    switch (role) {
    case Qt::DisplayRole:
        return text(item, index.column());
    case Qt::AccessibleTextRole: // the picture in words
        return text(item, index.column() == Bar ? Value : index.column());
    case Qt::TextAlignmentRole:
        return side(index.column());
    case cellNoteRole:
        return static_cast<int>(isFigure && item.quantity < 0 ? CellNote::Negative : CellNote::None);
    default:
        return {};
    }
}

} // namespace Tallymere
