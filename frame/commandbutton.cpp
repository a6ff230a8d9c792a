#include "frame/commandbutton.h"

#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace Tallymere {

QSize CommandButton::sizeHint() const
{
    const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
    const int width = iconSize().width() + text + 3 * scaled(this, Space::cell);
    return QSize(width, std::max(iconSize().height(), fontMetrics().height()) + scaled(this, Space::cell))
        .expandedTo(minimumSize());
}

void CommandButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);

    const int space = scaled(this, Space::cell);
    QRect area = rect().adjusted(space, 0, -space, 0);
    const QRect sign = QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter, iconSize(), area);
    icon().paint(&painter, sign, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const int taken = iconSize().width() + space;
    area.adjust(layoutDirection() == Qt::LeftToRight ? taken : 0, 0,
                layoutDirection() == Qt::LeftToRight ? 0 : -taken, 0);
    const int marks = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) ? Qt::TextShowMnemonic
                                                                                      : Qt::TextHideMnemonic;
    const Qt::Alignment where = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter;
    painter.drawItemText(area, static_cast<int>(where) | static_cast<int>(marks), palette(), isEnabled(), text(),
                         QPalette::ButtonText);

    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.rect = style()->subElementRect(QStyle::SE_PushButtonFocusRect, &option, this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

} // namespace Tallymere
