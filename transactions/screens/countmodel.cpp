#include "transactions/screens/countmodel.h"

#include "base/formats.h"
#include "controls/grids/cellnote.h"
#include "controls/windows/look.h"
#include "data/fields.h"

#include <algorithm>
#include <QFont>
#include <QGuiApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int heading = -1;

QString quantityText(const std::optional<double> &quantity)
{
    static const Engine::FieldFormat format = quantityFormat();
    return quantity ? format.display(Engine::Value(*quantity)) : QString();
}

QFont bold()
{
    QFont font;
    font.setBold(true);
    return font;
}

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
    : QAbstractTableModel(parent)
    , m_list(list)
{
}

void CountModel::listChanged()
{
    beginResetModel();
    m_items.clear();
    const bool grouped = m_list.order() == CountList::Order::Category;
    for (int item = 0; item < m_list.size(); ++item) {
        if (grouped && (item == 0 || !isSameCategory(m_list.row(item - 1), m_list.row(item))))
            m_items.push_back(heading);
        m_items.push_back(item);
    }
    endResetModel();
}

void CountModel::rowChanged(int item)
{
    const int row = rowOf(item);
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

void CountModel::setBlind(bool blind)
{
    m_blind = blind;
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int CountModel::rowOf(int item) const
{
    const auto found = std::find(m_items.begin(), m_items.end(), item);
    return item < 0 || found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

std::vector<int> CountModel::headings() const
{
    std::vector<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (m_items[static_cast<size_t>(row)] == heading)
            rows.push_back(row);
    }
    return rows;
}

int CountModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

int CountModel::columnCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : ColumnCount; }

QString CountModel::quantityText(const CountRow &row) const
{
    return Tallymere::quantityText(row.typed || m_blind ? row.typed : row.recorded);
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
        return m_blind ? QString() : Tallymere::quantityText(row.recorded);
    case Quantity:
        return quantityText(row);
    case Difference:
        return row.typed && !m_blind ? Tallymere::quantityText(row.difference()) : QString();
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

QVariant CountModel::headingData(int row, int role) const // over all columns
{
    const int first = m_items[static_cast<size_t>(row) + 1];
    switch (role) {
    case Qt::DisplayRole:
        return m_list.row(first).typeName;
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

QVariant CountModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int item = itemAt(index.row());
    if (item == heading)
        return index.column() == 0 ? headingData(index.row(), role) : QVariant();
    const CountRow &row = m_list.row(item);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(row, index.column(), role);
    case Qt::TextAlignmentRole:
        return QVariant(m_columns[index.column()].alignment | Qt::AlignVCenter);
    case cellNoteRole:
        return static_cast<int>(isNegative(row, index.column()) ? CellNote::Negative : CellNote::None);
    default:
        return look(row, index.column(), role);
    }
}

QVariant CountModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= ColumnCount)
        return {};
    if (role == Qt::DisplayRole)
        return m_columns[section].title;
    if (role == Qt::TextAlignmentRole)
        return QVariant(m_columns[section].alignment | Qt::AlignVCenter);
    return {};
}

bool CountModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    return role == Qt::EditRole && flags(index).testFlag(Qt::ItemIsEditable) && enterText
        && enterText(index, value.toString());
}

Qt::ItemFlags CountModel::flags(const QModelIndex &index) const
{
    if (itemAt(index.row()) == heading)
        return Qt::NoItemFlags;
    const bool editable = index.column() == Quantity || index.column() == StandardCost;
    return QAbstractTableModel::flags(index) | (editable ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

} // namespace Tallymere
