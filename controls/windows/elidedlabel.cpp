#include "controls/windows/elidedlabel.h"

#include "controls/windows/look.h"

#include <QEvent>
#include <QPainter>

namespace Tallymere {

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QString ElidedLabel::seen() const { return shortened(text(), fontMetrics(), contentsRect().width()); }

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(seen() == text() ? QString() : text());
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(ink());
    painter.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, seen());
}

} // namespace Tallymere
