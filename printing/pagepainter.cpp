#include "printing/pagepainter.h"

#include "printing/texts.h"

#include <QPainter>

namespace Tallymere::Printing {

namespace {

void paintText(QPainter &painter, const TextItem &item)
{
    if (item.squeeze == 1) {
        painter.drawText(QPointF(item.x, item.y), item.text);
        return;
    }
    painter.save();
    painter.translate(item.x, item.y);
    painter.scale(item.squeeze, 1);
    painter.drawText(QPointF(), item.text);
    painter.restore();
}

} // namespace

void paintPage(QPainter &painter, const Page &page, const Paper &paper, int number, int count)
{
    for (const Fill &fill : page.fills)
        painter.fillRect(fill.area, fill.gray ? Qt::gray : Qt::black);
    painter.setPen(Qt::black);
    TextStyle style = TextStyle::Small;
    painter.setFont(fontOf(style));
    for (const TextItem &item : page.texts) {
        if (item.style != style) {
            style = item.style;
            painter.setFont(fontOf(style));
        }
        paintText(painter, item);
    }
    const QString text = count > 0 ? PrintingTexts::tr("Page %1 of %2").arg(number).arg(count)
                                   : PrintingTexts::tr("Page %1").arg(number);
    const QRectF area = paper.area();
    painter.setFont(fontOf(TextStyle::Small));
    painter.drawText(QPointF(area.right() - TextMeasure::of(TextStyle::Small).width(text), area.bottom()), text);
}

} // namespace Tallymere::Printing
