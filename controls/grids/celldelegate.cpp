#include "controls/grids/celldelegate.h"

#include "controls/grids/datagrid.h"
#include "controls/windows/screenmetrics.h"

#include <QPainter>
#include <QStyle>

namespace Tallymere {

using Role = Look::Role;
using State = DataGrid::CellState;

namespace {

constexpr int frame = 2; // design pixels, as all here
constexpr int focusBar = 3;
constexpr int tickSize = 12;
constexpr int markSize = 7;
constexpr int chipPadding = 6;
constexpr int chipMargin = 4;

CellNote noteOf(const QModelIndex &index) { return static_cast<CellNote>(index.data(cellNoteRole).toInt()); }

} // namespace

CellDelegate::CellDelegate(DataGrid *grid)
    : QStyledItemDelegate(grid)
    , m_grid(grid)
{
}

int CellDelegate::frameWidth() const { return scaled(m_grid, frame); }

void CellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const Look &look = m_grid->look();
    const QColor ground = groundOf(index);
    const CellNote note = noteOf(index);
    const QRect cell = option.rect;
    painter->save();
    painter->fillRect(cell, ground);
    painter->fillRect(QRect(cell.left(), cell.bottom(), cell.width(), 1), look.colour(Role::Line));
    if (m_grid->beginsSetOff(index.column()))
        painter->fillRect(QRect(cell.topLeft(), QSize(1, cell.height())), look.colour(Role::Line));
    if (note == CellNote::Done)
        drawTick(*painter, cell, ground);
    else if (note == CellNote::Open)
        drawOpen(*painter, cell, m_grid->columns()[index.column()].openWord);
    else
        drawText(*painter, option, index, note, ground);
    if (index.data(cellMarkRole).toBool())
        drawMark(*painter, cell, look.on(ground, Role::Accent));
    if (m_grid->hasFocusBar(index))
        painter->fillRect(QRect(cell.topLeft(), QSize(scaled(m_grid, focusBar), cell.height())),
                          look.colour(Role::Accent));
    const bool refused = m_grid->isRefused(index);
    if (refused || m_grid->cellState(index) == State::Typing)
        drawFrame(*painter, cell, look.colour(refused ? Role::Negative : Role::Accent));
    painter->restore();
}

// What the model says of a cell stands behind what the cursor does.
QColor CellDelegate::groundOf(const QModelIndex &index) const
{
    const Look &look = m_grid->look();
    const QColor field = m_grid->palette().color(QPalette::Active, QPalette::Base);
    switch (m_grid->cellState(index)) {
    case State::Typing:
        return field;
    case State::ChosenCell:
        return look.colour(Role::ChosenCell);
    case State::ChosenRow:
        return look.colour(Role::ChosenRow);
    case State::Plain:
        break;
    }
    const QVariant own = index.data(Qt::BackgroundRole);
    return own.isValid() ? own.value<QColor>() : field;
}

QColor CellDelegate::textColour(const QModelIndex &index, CellNote note, const QColor &ground) const
{
    const Look &look = m_grid->look();
    if (note == CellNote::Negative)
        return look.on(ground, Role::Negative);
    if (note == CellNote::Lacking)
        return look.on(ground, Role::NoticeText);
    const bool quiet =
        m_grid->columns()[index.column()].setOff || index.data(cellQuietRole).toBool() || !m_grid->isEnabled();
    return look.on(ground, quiet ? Role::SecondText : Role::Text);
}

void CellDelegate::drawText(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                            CellNote note, const QColor &ground) const
{
    QString text = index.data().toString();
    if (text.isEmpty())
        return;
    text.replace(u'\n', u' ');
    const QVariant font = index.data(Qt::FontRole);
    painter.setFont(font.isValid() ? font.value<QFont>().resolve(option.font) : option.font);
    painter.setPen(textColour(index, note, ground));
    const int padding = m_grid->cellPadding();
    const QRect room = option.rect.adjusted(padding, 0, -padding, -1);
    const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    painter.drawText(room,
                     static_cast<int>(QStyle::visualAlignment(option.direction, alignment)) | Qt::TextSingleLine,
                     shortened(text, painter.fontMetrics(), room.width()));
}

void CellDelegate::drawTick(QPainter &painter, const QRect &cell, const QColor &ground) const
{
    const double size = scaled(m_grid, tickSize);
    const QRectF room(cell.left() + m_grid->cellPadding(), cell.center().y() - size / 2, size, size);
    Tallymere::drawTick(painter, room, m_grid->look().on(ground, Role::Positive));
}

void CellDelegate::drawOpen(QPainter &painter, const QRect &cell, const QString &word) const
{
    const Look &look = m_grid->look();
    const int padding = scaled(m_grid, chipPadding);
    const int margin = scaled(m_grid, chipMargin);
    painter.setFont(secondFont(m_grid->font()));
    QRect chip = cell.adjusted(m_grid->cellPadding() - padding, margin, 0, -margin - 1);
    chip.setWidth(std::min(painter.fontMetrics().horizontalAdvance(word) + 2 * padding, chip.width() - 1));
    drawNoticeGround(painter, chip, chip.height() / 2.0, look);
    painter.setPen(look.colour(Role::NoticeText));
    painter.drawText(chip, Qt::AlignCenter | Qt::TextSingleLine, word);
}

void CellDelegate::drawMark(QPainter &painter, const QRect &cell, const QColor &colour) const
{
    const double size = scaled(m_grid, markSize);
    const QRectF room(cell.x() + cell.width() - size, cell.y(), size, size);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPolygon(QPolygonF({room.topLeft(), room.topRight(), room.bottomRight()}));
}

void CellDelegate::drawFrame(QPainter &painter, const QRect &cell, const QColor &colour) const
{
    const int width = frameWidth();
    painter.fillRect(QRect(cell.left(), cell.top(), cell.width(), width), colour);
    painter.fillRect(QRect(cell.left(), cell.bottom() - width + 1, cell.width(), width), colour);
    painter.fillRect(QRect(cell.left(), cell.top(), width, cell.height()), colour);
    painter.fillRect(QRect(cell.right() - width + 1, cell.top(), width, cell.height()), colour);
}

} // namespace Tallymere
