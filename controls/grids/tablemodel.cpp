#include "controls/grids/tablemodel.h"

#include <algorithm>
#include <QTimer>

namespace Tallymere {

using Engine::DataSet;
using Engine::FieldType;

namespace {
constexpr int firstPage = 64; // rows: more than a window shows when it opens
} // namespace

TableModel::TableModel(DataSet &set, QList<GridColumn> columns, const Guard &guard, QObject *parent,
                       Reading reading)
    : QAbstractTableModel(parent)
    , m_guard(guard)
    , m_data(set)
    , m_columns(std::move(columns))
    , m_reading(reading)
{
    connect(&m_data, &DataSet::opened, this, &TableModel::takeList);
    connect(&m_data, &DataSet::closed, this, &TableModel::takeList);
    connect(&m_data, &DataSet::listChanged, this, &TableModel::takeList);
    connect(&m_data, &DataSet::rowChanged, this, &TableModel::updateRow);
    takeList();
}

int TableModel::columnOf(const QString &field) const
{
    for (int i = 0; i < m_columns.size(); ++i) {
        if (m_columns[i].shows(field))
            return i;
    }
    return -1;
}

int TableModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : m_rows; }

int TableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !m_data.isOpen())
        return {};
    const GridColumn &column = m_columns[index.column()];
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
    if (role == cellNoteRole) {
        CellNote note = CellNote::None;
        attempt([&] { note = cellNote(index); });
        return static_cast<int>(note);
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    QString text;
    attempt([&] { text = cellText(index, role); });
    return text;
}

QString TableModel::cellText(const QModelIndex &index, int role) const
{
    if (role == Qt::DisplayRole)
        return shownText(index.row(), index.column());
    const int number = m_fields[static_cast<size_t>(index.column())];
    return number < 0 ? QString() : std::as_const(m_data).field(number).editText(cellValue(index.row(), number));
}

CellNote TableModel::cellNote(const QModelIndex &index) const
{
    const GridColumn &column = m_columns[index.column()];
    const int number = m_fields[static_cast<size_t>(index.column())];
    const bool marks = !column.openWord.isEmpty();
    if (number < 0 || !(marks || column.alignment.testFlag(Qt::AlignRight)))
        return CellNote::None;
    const Engine::Value value = cellValue(index.row(), number);
    if (marks)
        return value.toBool() ? CellNote::Done : CellNote::Open;
    if (value.toDouble() >= 0)
        return CellNote::None;
    return column.warnsBelowZero ? CellNote::Lacking : CellNote::Negative;
}

QString TableModel::shownText(int row, int column) const
{
    const int number = m_fields[static_cast<size_t>(column)];
    return number < 0 ? QString() : shownValue(number, cellValue(row, number));
}

QString TableModel::shownText(const Engine::Row &row, int column) const
{
    const int number = m_fields[static_cast<size_t>(column)];
    return number < 0 ? QString() : shownValue(number, m_data.valueIn(row, number));
}

QString TableModel::shownValue(int number, const Engine::Value &value) const
{
    const Engine::Field &field = std::as_const(m_data).field(number);
    if (field.type == FieldType::Boolean && !field.format.display)
        return value.toBool() ? tr("Yes") : tr("No");
    return field.displayText(value);
}

void TableModel::findFields()
{
    m_fields.clear();
    for (const GridColumn &column : m_columns)
        m_fields.push_back(m_data.fieldIndex(column.field));
}

void TableModel::attempt(const std::function<void()> &reading) const
{
    const std::exception_ptr failure = Guard::attempt(reading);
    if (failure && !std::exchange(m_failed, true))
        QTimer::singleShot(0, this, [this, failure] { tell(failure); });
}

// A store that failed a handler fails what is painted under that message as well, which need not be told again.
void TableModel::tell(const std::exception_ptr &failure) const
{
    if (Guard::isTellingOfTheStore())
        Guard::trace(failure);
    else
        m_guard.report(failure);
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_columns.size())
        return {};
    if (role == Qt::DisplayRole)
        return m_columns[section].title;
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(m_columns[section].alignment | Qt::AlignVCenter);
    return {};
}

QModelIndexList TableModel::match(const QModelIndex &start, int role, const QVariant &value, int hits,
                                  Qt::MatchFlags flags) const
{
    if (!start.isValid() || !m_data.isOpen() || !flags.testFlag(Qt::MatchStartsWith) || hits != 1)
        return QAbstractTableModel::match(start, role, value, hits, flags);
    int row = -1;
    attempt([&] { row = rowStartingWith(m_columns[start.column()].field, value.toString()); });
    return row < 0 ? QModelIndexList() : QModelIndexList{index(row, start.column())};
}

int TableModel::rowStartingWith(const QString &field, const QString &text) const
{
    if (std::as_const(m_data).field(field).kind == Engine::FieldKind::Calculated)
        return -1; // not known to the store
    const Engine::LocateOptions options =
        Engine::LocateOptions(Engine::LocateOption::PartialKey) | Engine::LocateOption::CaseInsensitive;
    const auto found = m_data.find(field, {text}, options);
    return found ? m_data.indexOf(found->key) : -1;
}

Engine::Value TableModel::cellValue(int row, int field) const
{
    return m_partial ? m_data.valueIn(m_firstPage.at(static_cast<size_t>(row)).row, field)
                     : m_data.valueAt(row, field);
}

int TableModel::dataRows() const { return m_data.isOpen() ? m_data.recordCount() : 0; }

// Rows come and go at the end and all that stay are repainted: where in the order a change was does not matter to
// a view that shows row numbers, and the cursor keeps its place until the data set says where it belongs.
void TableModel::takeList() { readList(m_reading == Reading::FirstPageFirst && m_data.isOpen()); }

void TableModel::readList(bool mayBeginWithPage)
{
    findFields();
    m_failed = false;
    const bool wasPartial = std::exchange(m_partial, false);
    m_firstPage.clear();
    bool isFirstPage = mayBeginWithPage;
    int rows = 0;
    attempt([&] {
        isFirstPage = isFirstPage && (m_rows == 0 || m_data.beginsAnew());
        rows = isFirstPage ? 0 : dataRows();
    });
    isFirstPage ? readFirstPage() : showRows(rows);
    if (wasPartial && !m_partial)
        Q_EMIT completed();
}

void TableModel::readFirstPage()
{
    attempt([&] { m_firstPage = m_data.firstRows(firstPage); });
    m_partial = m_firstPage.size() == firstPage || m_data.hasFirstRowsOnly();
    showRows(static_cast<int>(m_firstPage.size()));
    if (!m_partial)
        m_firstPage.clear();
}

void TableModel::readRest()
{
    if (m_partial)
        readList(false);
}

int TableModel::currentRow() const
{
    if (!m_partial)
        return m_data.recordIndex();
    const auto found = std::ranges::find(m_firstPage, m_data.currentKey(), &Engine::FoundRow::key);
    return found == m_firstPage.end() ? -1 : static_cast<int>(found - m_firstPage.begin());
}

void TableModel::makeCurrent(int row)
{
    if (m_partial)
        m_data.moveToRow(m_firstPage.at(static_cast<size_t>(row)));
    else
        m_data.moveTo(row);
}

void TableModel::showRows(int rows)
{
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    }
    if (m_rows > 0)
        Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, TableModel::columnCount() - 1));
}

void TableModel::updateRow(int row)
{
    readRest();
    if (row >= 0 && row < m_rows)
        Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

} // namespace Tallymere
