#include "controls/windows/listrows.h"

#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"

#include <algorithm>
#include <QAbstractItemView>
#include <QPainter>

namespace Tallymere {

namespace {
constexpr int focusBar = 3; // design pixels
} // namespace

ListRows::ListRows(QAbstractItemView &list)
    : QStyledItemDelegate(&list)
    , m_list(list)
{
}

void ListRows::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const Look look(m_list.palette());
    const bool isChosen = option.state.testFlag(QStyle::State_Selected);
    const QColor ground =
        isChosen ? look.colour(Look::Role::ChosenRow) : m_list.palette().color(QPalette::Active, QPalette::Base);
    const int padding = scaled(&m_list, Space::cell);
    const QRect room = option.rect.adjusted(padding, 0, -padding, 0);
    painter->save();
    painter->fillRect(option.rect, ground);
    if (isChosen && m_list.hasFocus())
        painter->fillRect(QRect(option.rect.topLeft(), QSize(scaled(&m_list, focusBar), option.rect.height())),
                          look.colour(Look::Role::Accent));
    painter->setFont(option.font);
    painter->setPen(look.on(ground, m_list.isEnabled() ? Look::Role::Text : Look::Role::SecondText));
    painter->drawText(room,
                      static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter))
                          | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, room.width()));
    painter->restore();
}

QSize ListRows::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize text = option.fontMetrics.size(Qt::TextSingleLine, index.data().toString());
    return {text.width() + 2 * scaled(&m_list, Space::cell), std::max(text.height(), scaled(&m_list, Space::row))};
}

} // namespace Tallymere
