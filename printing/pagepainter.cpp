#include "printing/pagepainter.h"

#include "printing/texts.h"

#include <optional>
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
    const QTransform &transform = painter.deviceTransform();
    const QSizeF dot(1 / transform.m11(), 1 / transform.m22());
    for (const Fill &fill : page.fills) {
        // A rule that is thinner than a dot of the device would be left out where it lies between two.
        const QRectF area(fill.area.topLeft(), fill.area.size().expandedTo(dot));
        painter.fillRect(area, fill.gray ? Qt::gray : Qt::black);
    }
    painter.setPen(Qt::black);
    std::optional<TextStyle> style;
    for (const TextItem &item : page.texts) {
        if (item.style != style)
            painter.setFont(fontOf(*(style = item.style)));
        paintText(painter, item);
    }
    const QString text = count > 0 ? PrintingTexts::tr("Page %1 of %2").arg(number).arg(count)
                                   : PrintingTexts::tr("Page %1").arg(number);
    const QRectF area = paper.area();
    painter.setFont(fontOf(TextStyle::Small));
    painter.drawText(QPointF(area.right() - TextMeasure::of(TextStyle::Small).width(text), area.bottom()), text);
}

} // namespace Tallymere::Printing
