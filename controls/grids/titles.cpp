#include "controls/grids/titles.h"

#include "controls/grids/datagrid.h"
#include "controls/windows/screenmetrics.h"

#include <QEvent>
#include <QPainter>
#include <QPaintEvent>

namespace Tallymere {

namespace {
constexpr int leastHeight = 28; // design pixels, as all here
constexpr int leastPadding = 4; // where a column is too narrow for that of its cells
constexpr int arrow = 7;
constexpr int arrowGap = 5;
} // namespace

Titles::Titles(DataGrid *grid)
    : QHeaderView(Qt::Horizontal, grid)
    , m_grid(grid)
{
    setSectionsClickable(true);
    setHighlightSections(false);
    takeFont();
}

void Titles::takeFont() { setFont(headFont(m_grid->font())); }

void Titles::changeEvent(QEvent *event)
{
    QHeaderView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        viewport()->update();
}

QSize Titles::sectionSizeFromContents(int column) const
{
    const QString title = model()->headerData(column, Qt::Horizontal).toString();
    return {leastWidth(title) + arrowWidth(column),
            std::max(scaled(m_grid, leastHeight), fontMetrics().height() + m_grid->cellPadding())};
}

int Titles::leastWidth(const QString &title) const
{
    return fontMetrics().horizontalAdvance(title) + 2 * scaled(m_grid, leastPadding);
}

int Titles::widthWithArrow(const QString &title) const
{
    return leastWidth(title) + scaled(m_grid, arrow + arrowGap);
}

int Titles::arrowWidth(int column) const
{
    return isSortIndicatorShown() && sortIndicatorSection() == column ? scaled(m_grid, arrow + arrowGap) : 0;
}

// Also where there is no column.
void Titles::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    const QRect all = viewport()->rect();
    painter.fillRect(all, m_grid->look().colour(Look::Role::Head));
    painter.fillRect(QRect(all.left(), all.bottom(), all.width(), 1), m_grid->look().colour(Look::Role::Line));
    painter.end();
    QHeaderView::paintEvent(event);
}

void Titles::paintSection(QPainter *painter, const QRect &section, int column) const
{
    const Look &look = m_grid->look();
    const QColor ground = look.colour(Look::Role::Head);
    const int ofArrow = arrowWidth(column);
    const auto alignment =
        model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
    const QString title = model()->headerData(column, Qt::Horizontal).toString();
    const int spare = section.width() - ofArrow - fontMetrics().horizontalAdvance(title);
    const int padding = std::clamp(spare / 2, scaled(m_grid, leastPadding), m_grid->cellPadding());
    const QRect room = section.adjusted(padding, 0, -padding - ofArrow, -1);
    painter->save();
    painter->fillRect(section.adjusted(0, 0, 0, -1), ground);
    painter->fillRect(QRect(section.left(), section.bottom(), section.width(), 1), look.colour(Look::Role::Line));
    if (m_grid->beginsSetOff(column))
        painter->fillRect(QRect(section.topLeft(), QSize(1, section.height())), look.colour(Look::Role::Line));
    painter->setFont(font());
    painter->setPen(look.on(ground, Look::Role::SecondText));
    QRect drawn;
    painter->drawText(room,
                      static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment)) | Qt::TextSingleLine,
                      shortened(title, fontMetrics(), room.width()), &drawn);
    if (ofArrow > 0) {
        const double size = scaled(m_grid, arrow);
        drawArrow(*painter, QRectF(drawn.right() + ofArrow - size, drawn.center().y() - size / 4, size, size / 2));
    }
    painter->restore();
}

void Titles::drawArrow(QPainter &painter, const QRectF &room) const
{
    const bool up = sortIndicatorOrder() == Qt::AscendingOrder;
    const double base = up ? room.bottom() : room.top();
    const double tip = up ? room.top() : room.bottom();
    const QPointF corners[] = {{room.left(), base}, {room.right(), base}, {room.center().x(), tip}};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawConvexPolygon(corners, 3);
}

} // namespace Tallymere
