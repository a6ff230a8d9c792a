#include "transactions/screens/countmodel.h"

#include "base/formats.h"
#include "controls/grids/cellnote.h"
#include "controls/windows/look.h"
#include "data/fields.h"

#include <QFont>
#include <QGuiApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString shown(const std::optional<double> &quantity) { return quantity ? quantityText(*quantity) : QString(); }

bool isCountColumn(int column) { return column == CountModel::Quantity || column == CountModel::Difference; }

bool isNegative(const CountRow &row, int column)
{
    switch (column) {
    case CountModel::Prior:
        return row.prior() < 0;
    case CountModel::Quantity:
        return row.counted() < 0;
    case CountModel::Difference:
        return row.typed && row.difference() < 0;
    default:
        return false;
    }
}

bool isSameCategory(const CountRow &one, const CountRow &other)
{
    return one.typeName.compare(other.typeName, Qt::CaseInsensitive) == 0;
}

} // namespace

QList<GridColumn> CountModel::gridColumns()
{
    return {
        {.field = Fields::ItemNo, .title = tr("Item No"), .width = 90, .letters = 8},
        {.field = Fields::TypeName, .title = tr("Category"), .width = 130, .letters = 9},
        {.field = Fields::ItemDescription, .title = tr("Item"), .width = 300, .takesSurplus = true, .letters = 18},
        {Fields::StandardCost, tr("Standard Cost"), 112, Qt::AlignRight},
        {CountList::QtyOnhand, tr("Prior Quantity"), 105, Qt::AlignRight},
        {Fields::Quantity, tr("Current Quantity"), 120, Qt::AlignRight},
        {u"Difference"_s, tr("Difference"), 90, Qt::AlignRight},
        {Fields::UnitCost, tr("Unit Cost"), 90, Qt::AlignRight}};
}

CountModel::CountModel(const CountList &list, QObject *parent)
    : GroupedModel(gridColumns(), parent)
    , m_list(list)
{
}

void CountModel::listChanged()
{
    const bool grouped = m_list.order() == CountList::Order::Category;
    setItems(m_list.size(), [&](int item) {
        return grouped && (item == 0 || !isSameCategory(m_list.row(item - 1), m_list.row(item)));
    });
}

void CountModel::setBlind(bool blind)
{
    m_blind = blind;
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

QString CountModel::quantityText(const CountRow &row) const
{
    return shown(row.typed || m_blind ? row.typed : row.recorded);
}

QString CountModel::text(const CountRow &row, int column, int role) const
{
    switch (column) {
    case ItemNo:
        return row.itemNo;
    case Category:
        return row.typeName;
    case Item:
        return row.description;
    case StandardCost:
        return role == Qt::EditRole ? currencyEditText(row.standardCost) : currencyText(row.standardCost);
    case Prior:
        return m_blind ? QString() : shown(row.recorded);
    case Quantity:
        return quantityText(row);
    case Difference:
        return row.typed && !m_blind ? shown(row.difference()) : QString();
    default: // what a difference is valued at
        return currencyText(row.unitCost);
    }
}

// Of what somebody else has counted.
QString CountModel::markText(const CountRow &row) const
{
    if (row.mark.by.isEmpty())
        return {};
    return tr("Counted by %1, %2").arg(row.mark.by, QLocale::system().toString(row.mark.at, QLocale::ShortFormat));
}

// What has been counted is bold, and on a ground of its own where it differs; what has not been shows the recorded quantity
// faintly.
QVariant CountModel::look(const CountRow &row, int column, int role) const
{
    if (!isCountColumn(column))
        return {};
    if (column == Quantity && role == cellMarkRole)
        return !row.mark.by.isEmpty();
    if (column == Quantity && (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole))
        return markText(row);
    if (role == cellQuietRole)
        return !row.typed;
    if (role == Qt::BackgroundRole && row.typed && row.differs() && !m_blind)
        return Look(QGuiApplication::palette()).colour(Look::Role::NoticeGround);
    if (role == Qt::FontRole && row.typed)
        return bold();
    return {};
}

QString CountModel::headingText(int firstItem) const { return m_list.row(firstItem).typeName; }

QVariant CountModel::itemData(int item, int column, int role) const
{
    const CountRow &row = m_list.row(item);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(row, column, role);
    case cellNoteRole:
        return static_cast<int>(isNegative(row, column) ? CellNote::Negative : CellNote::None);
    default:
        return look(row, column, role);
    }
}

bool CountModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    return role == Qt::EditRole && flags(index).testFlag(Qt::ItemIsEditable) && enterText
        && enterText(index, value.toString());
}

bool CountModel::isEditable(int column) const { return column == Quantity || column == StandardCost; }

} // namespace Tallymere
