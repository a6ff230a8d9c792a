#include "frame/finder/findingdelegate.h"

#include "controls/windows/icons.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"

#include <QPainter>

namespace Tallymere {

namespace {

constexpr int signSize = 16; // design pixels

void drawIn(QPainter &painter, const QRect &room, const QString &text, Qt::Alignment alignment)
{
    painter.drawText(room, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                     shortened(text, painter.fontMetrics(), room.width()));
}

} // namespace

void FindingDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    using enum Look::Role;
    const Look look(option.palette);
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    const QColor ground = chosen ? look.colour(ChosenRow) : option.palette.color(QPalette::Active, QPalette::Base);
    const int margin = scaled(option.widget, Space::cell);
    QRect room = option.rect.adjusted(margin, 0, -margin, 0);
    const QString title = index.data().toString();
    painter->save();
    painter->fillRect(option.rect, ground);
    if (index.data(IsHeading).toBool()) {
        QFont font = headFont(option.font);
        font.setCapitalization(QFont::AllUppercase);
        painter->setFont(font);
        painter->setPen(look.on(ground, SecondText));
        drawIn(*painter, room, title, Qt::AlignLeft);
        painter->restore();
        return;
    }
    const int sign = scaled(option.widget, signSize);
    paintGlyph(*painter, QRectF(room.left(), room.center().y() - sign / 2.0, sign, sign),
               static_cast<Glyph>(index.data(Sign).toInt()), look.on(ground, Accent));
    room.setLeft(room.left() + sign + margin);
    // The title comes first where there is not room for both.
    const int titleWidth = QFontMetrics(option.font).horizontalAdvance(title) + 1;
    painter->setFont(option.font);
    painter->setPen(look.on(ground, Text));
    drawIn(*painter, room, title, Qt::AlignLeft);
    room.setLeft(room.left() + titleWidth + 2 * margin);
    if (room.width() > 2 * margin) {
        painter->setFont(secondFont(option.font));
        painter->setPen(look.on(ground, SecondText));
        drawIn(*painter, room, index.data(Detail).toString(), Qt::AlignRight);
    }
    painter->restore();
}

QSize FindingDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {0,
            std::max(option.fontMetrics.height() + scaled(option.widget, Space::cell),
                     scaled(option.widget, Space::row))};
}

} // namespace Tallymere
