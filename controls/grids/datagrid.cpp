#include "controls/grids/datagrid.h"

#include "controls/grids/celldelegate.h"
#include "controls/grids/titles.h"
#include "controls/windows/screenmetrics.h"

#include <algorithm>
#include <QEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextDocument>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int rowPadding = 7; // design pixels
constexpr int hintMargin = 16;
} // namespace

DataGrid::DataGrid(QWidget *parent)
    : QTableView(parent)
    , m_look(palette())
    , m_titles(new Titles(this))
{
    setItemDelegate(new CellDelegate(this));
    setHorizontalHeader(m_titles);
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideRight);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(
        std::max(scaled(this, Space::row), fontMetrics().height() + scaled(this, rowPadding)));
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (!m_sharing && column < m_widths.size())
            setWantedWidth(column, width);
    });
}

int DataGrid::columnOf(const QString &field) const
{
    const auto found = std::find_if(m_columns.cbegin(), m_columns.cend(),
                                    [&](const GridColumn &column) { return column.shows(field); });
    return found == m_columns.cend() ? -1 : static_cast<int>(found - m_columns.cbegin());
}

void DataGrid::showModel(TableModel *model)
{
    m_table = model;
    showModel(model, model->columns());
}

void DataGrid::showModel(QAbstractItemModel *model, const QList<GridColumn> &columns)
{
    const QScopedValueRollback setting(m_sharing, true);
    m_columns = columns;
    setModel(model);
    m_surplusColumn = static_cast<int>(columns.size()) - 1;
    m_widths.clear();
    for (int i = 0; i < columns.size(); ++i) {
        m_widths.append({wantedWidthOf(i), leastWidthOf(i)});
        setColumnWidth(i, m_widths[i].wanted);
        if (columns[i].takesSurplus)
            m_surplusColumn = i;
    }
    // Its width is what the others leave.
    if (m_surplusColumn >= 0)
        horizontalHeader()->setSectionResizeMode(m_surplusColumn, QHeaderView::Fixed);
}

// --- widths -----------------------------------------------------------------------------------------------------

// As described, or as wide as its title or its words where these are longer in the language of the user.
int DataGrid::wantedWidthOf(int column) const
{
    const GridColumn &described = m_columns[column];
    return std::max(
        {scaled(this, described.width), m_titles->widthWithArrow(described.title), wordsWidth(described)});
}

int DataGrid::wordsWidth(const GridColumn &described) const
{
    int width = 0;
    for (const QString &word : described.words)
        width = std::max(width, fontMetrics().horizontalAdvance(word) + 2 * cellPadding());
    return width;
}

// Words keep all of their letters and other texts some, figures and dates three quarters of their column; nothing less than
// its title.
int DataGrid::leastWidthOf(int column) const
{
    const GridColumn &described = m_columns[column];
    const int wanted = wantedWidthOf(column);
    const int margins = 2 * cellPadding();
    const int letters = described.words.isEmpty()
        ? fontMetrics().horizontalAdvance(QString(described.letters, u'n')) + margins
        : wordsWidth(described);
    const int title = m_titles->widthWithArrow(described.title);
    const bool isText = described.alignment.testFlag(Qt::AlignLeft);
    return std::min(wanted, std::max(title, isText ? letters : wanted * 3 / 4));
}

int DataGrid::sumOf(int Width::*part) const
{
    int sum = 0;
    for (int i = 0; i < m_widths.size(); ++i)
        sum += isColumnHidden(i) ? 0 : m_widths[i].*part;
    return sum;
}

int DataGrid::leastWidth() const
{
    return sumOf(&Width::least) + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
}

void DataGrid::setWantedWidth(int column, int width)
{
    m_widths[column] = {width, width};
    shareWidth();
}

void DataGrid::setColumnShown(int column, bool shown)
{
    if (isColumnHidden(column) != shown)
        return;
    const QScopedValueRollback sharing(m_sharing, true); // a hidden column keeps the width that it had
    setColumnHidden(column, !shown);
    shareWidth();
}

void DataGrid::shareWidth()
{
    const QScopedValueRollback sharing(m_sharing, true);
    const int lack = sumOf(&Width::wanted) - viewport()->width();
    int spare = sumOf(&Width::wanted) - sumOf(&Width::least); // that the columns so far have not been asked for
    int missing = std::clamp(lack, 0, spare);
    for (int i = 0; i < m_widths.size(); ++i) {
        if (isColumnHidden(i))
            continue;
        const int own = m_widths[i].wanted - m_widths[i].least;
        const int given = spare > 0 ? qRound(static_cast<double>(missing) * own / spare) : 0;
        spare -= own;
        missing -= given;
        const int surplus = i == m_surplusColumn ? std::max(0, -lack) : 0;
        setColumnWidth(i, m_widths[i].wanted - given + surplus);
    }
}

void DataGrid::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    shareWidth();
}

int DataGrid::widthForColumns(int count) const
{
    int width = 0;
    const int shown = std::min(count, static_cast<int>(m_columns.size()));
    for (int column = 0; column < shown; ++column)
        width += wantedWidthOf(column);
    return width + shown + scaled(this, 16) + 4;
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
    QStringList told{isCut(index) ? index.data().toString() : QString(), index.data(Qt::ToolTipRole).toString()};
    told.removeAll(QString());
    const QString text = told.join(u'\n'); // even an empty one would have a box once it is converted
    QToolTip::showText(help->globalPos(),
                       text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNoWrap), this,
                       visualRect(index));
    return true;
}

bool DataGrid::isCut(const QModelIndex &cell) const
{
    const QVariant font = cell.data(Qt::FontRole);
    const QFontMetrics metrics = font.isValid() ? QFontMetrics(font.value<QFont>()) : fontMetrics();
    const int space = columnWidth(cell.column()) - 2 * cellPadding();
    return metrics.horizontalAdvance(cell.data().toString()) > space;
}

QString DataGrid::cutFigures(int row) const
{
    if (row < 0 || row >= model()->rowCount())
        return {};
    QStringList figures;
    for (int column = 0; column < m_columns.size(); ++column) {
        const QModelIndex cell = model()->index(row, column);
        if (m_columns[column].alignment.testFlag(Qt::AlignRight) && !isColumnHidden(column) && isCut(cell))
            figures.append(u"%1: %2"_s.arg(m_columns[column].title, cell.data().toString()));
    }
    return figures.join(u"   "_s);
}

// --- the look ---------------------------------------------------------------------------------------------------

int DataGrid::cellPadding() const { return scaled(this, Space::cell); }

bool DataGrid::beginsSetOff(int column) const
{
    return m_columns[column].setOff && (column == 0 || !m_columns[column - 1].setOff);
}

DataGrid::CellState DataGrid::cellState(const QModelIndex &cell) const
{
    const bool chosen = cell.row() == currentIndex().row() || selectionModel()->isSelected(cell);
    return chosen ? CellState::ChosenRow : CellState::Plain;
}

bool DataGrid::takesKeys() const { return window()->focusWidget() == this; }

void DataGrid::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        m_look = Look(palette());
    QTableView::changeEvent(event);
}

// The whole row shows where the cursor is, not only its cell.
void DataGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    if (current.row() != previous.row()) {
        updateRow(current.row());
        updateRow(previous.row());
    }
}

void DataGrid::updateRow(int row)
{
    if (row >= 0 && row < model()->rowCount())
        viewport()->update(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
}

void DataGrid::setHint(const QString &hint)
{
    if (hint == m_hint)
        return;
    m_hint = hint;
    viewport()->update();
}

QString DataGrid::shownHint() const
{
    const bool empty = m_table && m_table->dataSet().isOpen() && m_table->rowCount() == 0 && !m_table->hasFailed()
        && !m_table->isPartial();
    return empty ? m_hint : QString();
}

void DataGrid::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (const QString hint = shownHint(); !hint.isEmpty())
        paintHint(hint);
    if (hasFocus() && model() && model()->rowCount() == 0)
        paintFocus();
}

// Without a row there is none to show the cursor in.
void DataGrid::paintFocus()
{
    QPainter painter(viewport());
    painter.setPen(m_look.colour(Look::Role::Accent));
    painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void DataGrid::paintHint(const QString &hint)
{
    const int margin = scaled(this, hintMargin);
    QPainter painter(viewport());
    painter.setPen(m_look.on(palette().color(QPalette::Base), Look::Role::SecondText));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, hint);
}

} // namespace Tallymere
