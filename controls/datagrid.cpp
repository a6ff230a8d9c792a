#include "controls/datagrid.h"

#include "controls/screenmetrics.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QTextDocument>
#include <QToolTip>

namespace Tallymere {

namespace {
constexpr int rowPadding = 7; // design pixels
} // namespace

DataGrid::DataGrid(QWidget *parent)
    : QTableView(parent)
{
    setAlternatingRowColors(true);
    setShowGrid(true);
    setGridStyle(Qt::SolidLine);
    setWordWrap(false);
    setTextElideMode(Qt::ElideRight);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + scaled(this, rowPadding));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsMovable(false);
    horizontalHeader()->setStretchLastSection(true);
}

void DataGrid::showModel(TableModel *model)
{
    m_model = model;
    setModel(model);
    const QList<GridColumn> &columns = model->columns();
    for (int i = 0; i < columns.size(); ++i)
        setColumnWidth(i, scaled(this, columns[i].width));
}

int DataGrid::fullWidth() const
{
    int width = 0;
    for (const GridColumn &column : m_model->columns())
        width += scaled(this, column.width);
    return width + static_cast<int>(m_model->columns().size()) + scaled(this, 16) + 4;
}

int DataGrid::heightForRows(int rows) const
{
    return horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize()
        + 2 * frameWidth();
}

bool DataGrid::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    const QString text = index.data().toString();
    const int space = columnWidth(index.column()) - 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    const bool cut = fontMetrics().horizontalAdvance(text) > space;
    QToolTip::showText(help->globalPos(), cut ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNoWrap) : QString(),
                       this, visualRect(index));
    return true;
}

void ListGrid::setDataSet(Engine::DataSet &set, const QList<GridColumn> &columns, const Guard &guard)
{
    m_data = &set;
    m_guard = &guard;
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    showModel(new TableModel(set, columns, guard, this, TableModel::Reading::FirstPageFirst));
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, &ListGrid::giveCursor);
    // The model hears of a new list first; with its rows there, the cursor goes to the current one.
    connect(&set, &Engine::DataSet::currentChanged, this, &ListGrid::takeCursor);
    connect(tableModel(), &QAbstractItemModel::dataChanged, this, &ListGrid::takeCursor);
    takeCursor();
}

void ListGrid::takeCursor()
{
    if (m_moving || !m_data->isOpen())
        return;
    const int row = m_data->recordIndex();
    if (row >= tableModel()->rowCount())
        tableModel()->readRest();
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
    m_guard->run([&] { m_data->moveTo(current.row()); });
    m_moving = false;
}

void ListGrid::paintEvent(QPaintEvent *event)
{
    DataGrid::paintEvent(event);
    if (tableModel()->isPartial())
        QMetaObject::invokeMethod(tableModel(), &TableModel::readRest, Qt::QueuedConnection);
}

void ListGrid::showEvent(QShowEvent *event)
{
    DataGrid::showEvent(event);
    takeCursor();
}

void ListGrid::keyPressEvent(QKeyEvent *event)
{
    tableModel()->readRest();
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (plain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        Q_EMIT chosen();
        return;
    }
    if (plain && event->key() == Qt::Key_Home && tableModel()->rowCount() > 0) {
        setCurrentIndex(tableModel()->index(0, 0));
        return;
    }
    if (plain && event->key() == Qt::Key_End && tableModel()->rowCount() > 0) {
        setCurrentIndex(tableModel()->index(tableModel()->rowCount() - 1, 0));
        return;
    }
    DataGrid::keyPressEvent(event);
}

void ListGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    const bool onRow = event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid();
    DataGrid::mouseDoubleClickEvent(event);
    if (onRow)
        Q_EMIT chosen();
}

} // namespace Tallymere
