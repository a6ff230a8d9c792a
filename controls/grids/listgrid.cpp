#include "controls/grids/listgrid.h"

#include "controls/windows/typing.h"
#include "engine/store/database.h"

#include <algorithm>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace Tallymere {

namespace {
// Ctrl+Home and Ctrl+End, which go where Home and End go and select as these do.
bool isFarJump(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(event);
    return (key.key() == Qt::Key_Home || key.key() == Qt::Key_End) && !key.modifiers().testFlag(Qt::ShiftModifier);
}
} // namespace

void ListGrid::setDataSet(Engine::DataSet &set, const QList<GridColumn> &columns, const Guard &guard)
{
    m_data = &set;
    m_guard = &guard;
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto *model = new TableModel(set, columns, guard, this, TableModel::Reading::FirstPageFirst);
    // The view moves its cursor off rows that go. Where it belongs in the new list the data set says afterwards.
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this] { m_moving = true; });
    showModel(model);
    connect(model, &QAbstractItemModel::rowsRemoved, this, [this] { m_moving = false; });
    m_search = new ListSearch(*tableModel(), guard, this);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, &ListGrid::giveCursor);
    // The model hears of a new list first; with its rows there, the cursor goes to the current one.
    connect(&set, &Engine::DataSet::listChanged, this, &ListGrid::dropSelection);
    connect(&set, &Engine::DataSet::currentChanged, this, &ListGrid::takeCursor);
    connect(tableModel(), &QAbstractItemModel::dataChanged, this, &ListGrid::takeCursor);
    // Painting tells whether there is nothing, and reads on where that is not known.
    for (const auto changed : {&Engine::DataSet::opened, &Engine::DataSet::listChanged})
        connect(&set, changed, viewport(), qOverload<>(&QWidget::update));
    connect(tableModel(), &TableModel::completed, viewport(), qOverload<>(&QWidget::update));
    takeCursor();
}

// --- the cursor -------------------------------------------------------------------------------------------------

void ListGrid::takeCursor()
{
    if (m_moving || !m_data->isOpen())
        return;
    const bool isOfFirst = tableModel()->isPartial() && tableModel()->rowCount() > 0;
    if (isOfFirst && tableModel()->currentRow() < 0)
        tableModel()->readRest(); // it is further down
    const int row = tableModel()->currentRow();
    if (row < 0 || row >= tableModel()->rowCount() || row == currentIndex().row())
        return;
    m_moving = true;
    const QModelIndex index = tableModel()->index(row, 0);
    if (!viewport()->rect().contains(visualRect(index).topLeft()))
        scrollTo(index, PositionAtCenter);
    setCurrentIndex(index);
    m_moving = false;
}

void ListGrid::giveCursor(const QModelIndex &current)
{
    if (m_moving || !current.isValid())
        return;
    m_moving = true;
    m_guard->run([&] { tableModel()->makeCurrent(current.row()); });
    m_moving = false;
}

void ListGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    DataGrid::currentChanged(current, previous);
    setAttribute(
        Qt::WA_InputMethodEnabled); // the base wants it for editors only; composed letters are searched for
}

// --- the selection ----------------------------------------------------------------------------------------------

// Rows are selected by their numbers. In a new list these stand for other records, and the keys that are held were not for it.
void ListGrid::dropSelection()
{
    m_held.clear();
    selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

QItemSelectionModel::SelectionFlags ListGrid::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    if (!index.isValid())
        return QItemSelectionModel::NoUpdate; // a click beside the rows
    const bool byDataSet = !event; // whatever keys are held down meanwhile
    if (byDataSet || isFarJump(*event))
        return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    return DataGrid::selectionCommand(index, event);
}

QList<RowRange> ListGrid::selectedRows() const
{
    QList<RowRange> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection())
        rows.append({range.top(), range.bottom()});
    if (rows.isEmpty() && currentIndex().isValid())
        rows.append({currentIndex().row(), currentIndex().row()});
    std::sort(rows.begin(), rows.end(), [](const RowRange &a, const RowRange &b) { return a.first < b.first; });
    return rows;
}

// The base tells assistive programs of a selection by all its cells, which of a long list are too many to list.
void ListGrid::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    const auto isLarge = [](const QItemSelection &selection) {
        constexpr int many = 1000;
        return std::any_of(selection.begin(), selection.end(),
                           [](const QItemSelectionRange &range) { return range.height() > many; });
    };
    if (isLarge(selected) || isLarge(deselected))
        QAbstractItemView::selectionChanged(selected, deselected); // NOLINT(bugprone-parent-virtual-call)
    else
        DataGrid::selectionChanged(selected, deselected);
}

// --- keys and mouse ---------------------------------------------------------------------------------------------

void ListGrid::keyPressEvent(QKeyEvent *event)
{
    if (waitsForRest(*event) || m_search->takeKey(*event))
        return;
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (plain && isEnter(*event)) {
        Q_EMIT chosen();
        return;
    }
    DataGrid::keyPressEvent(event);
}

// A key that goes beyond the first page is held until the rest is there, and all that follow it are.
bool ListGrid::waitsForRest(const QKeyEvent &key)
{
    if (!tableModel()->isPartial() || m_isReleasing || (m_held.empty() && staysOnPage(key)))
        return false;
    readRest();
    if (!tableModel()->isPartial())
        return false;
    if (key.key() == Qt::Key_Escape)
        m_held.clear();
    else
        m_held.emplace_back(key.clone());
    return true;
}

bool ListGrid::staysOnPage(const QKeyEvent &key) const
{
    const int below = tableModel()->rowCount() - 1 - currentIndex().row();
    switch (key.key()) {
    case Qt::Key_Down:
        return below > 0;
    case Qt::Key_PageDown:
        return below > viewport()->height() / std::max(1, rowHeight(0));
    case Qt::Key_Up:
    case Qt::Key_PageUp:
    case Qt::Key_Home:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Escape:
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return currentIndex().isValid();
    default:
        return key.text().isEmpty() && key.key() != Qt::Key_End; // modifiers alone, and what is none of the grid's
    }
}

void ListGrid::releaseKeys()
{
    const QScopedValueRollback releasing(m_isReleasing, true);
    for (const std::unique_ptr<QKeyEvent> &key : std::exchange(m_held, {}))
        QApplication::sendEvent(this, key.get());
}

// Home and End lead to the first and the last row; the base stays in the row. A row is current as a whole, so that Left and
// Right show more of it.
QModelIndex ListGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveLeft || action == MoveRight) {
        horizontalScrollBar()->triggerAction(action == MoveLeft ? QScrollBar::SliderSingleStepSub
                                                                : QScrollBar::SliderSingleStepAdd);
        return currentIndex();
    }
    const int rows = tableModel()->rowCount();
    if (rows > 0 && (action == MoveHome || action == MoveEnd))
        return tableModel()->index(action == MoveHome ? 0 : rows - 1, 0);
    return DataGrid::moveCursor(action, modifiers);
}

void ListGrid::keyboardSearch(const QString &text) { m_search->type(text); }

void ListGrid::inputMethodEvent(QInputMethodEvent *event)
{
    if (!event->commitString().isEmpty())
        m_search->type(event->commitString());
    event->accept();
}

void ListGrid::focusOutEvent(QFocusEvent *event)
{
    m_search->end();
    DataGrid::focusOutEvent(event);
}

void ListGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    const bool onRow = event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid();
    DataGrid::mouseDoubleClickEvent(event);
    if (onRow)
        Q_EMIT chosen();
}

// --- painting ---------------------------------------------------------------------------------------------------

// Among several selected rows the one with the cursor stands out: commands work on it.
DataGrid::CellState ListGrid::cellState(const QModelIndex &cell) const
{
    const QItemSelection &selection = selectionModel()->selection();
    const bool many = selection.size() > 1 || (selection.size() == 1 && selection.first().height() > 1);
    return many && cell.row() == currentIndex().row() ? CellState::ChosenCell : DataGrid::cellState(cell);
}

bool ListGrid::hasFocusBar(const QModelIndex &cell) const
{
    return cell.column() == 0 && cell.row() == currentIndex().row() && takesKeys();
}

void ListGrid::paintEvent(QPaintEvent *event)
{
    DataGrid::paintEvent(event);
    if (tableModel()->isPartial())
        QMetaObject::invokeMethod(this, &ListGrid::readRest, Qt::QueuedConnection);
}

// Where that takes long the window does not wait for it. What has been read may be of a list that is another by now, which
// is read anew.
void ListGrid::readRest()
{
    if (m_rest.isReading())
        return;
    if (!tableModel()->isPartial())
        return releaseKeys();
    bool isAside = false;
    const auto begin = [&] {
        const Engine::DataSet::RestOver rest = m_data->restToCome();
        if (!rest)
            return;
        const auto readOver = [rest, this](Engine::Database &database) -> std::function<void()> {
            return [hand = rest(database.connection()), this] {
                hand();
                readRest();
            };
        };
        m_rest.start(m_data->database(), readOver, [this](const std::exception_ptr &) { showRest(); });
        isAside = true;
    };
    if (Guard::attempt(begin) || !isAside)
        showRest(); // and tell what is wrong
}

void ListGrid::showRest()
{
    tableModel()->readRest();
    releaseKeys();
}

void ListGrid::showEvent(QShowEvent *event)
{
    DataGrid::showEvent(event);
    takeCursor();
}

} // namespace Tallymere
