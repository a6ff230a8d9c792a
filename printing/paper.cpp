#include "printing/paper.h"

namespace Tallymere::Printing {

QPageLayout Paper::layout() const
{
    QPageLayout layout(QPageSize(size), orientation, QMarginsF(), QPageLayout::Point);
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

QRectF Paper::sheet() const
{
    const QSizeF points = layout().fullRect(QPageLayout::Point).size();
    return {QPointF(), points * unitsPerPoint};
}

QRectF Paper::area() const
{
    constexpr double side = 45 * unitsPerPoint;
    constexpr double top = 40 * unitsPerPoint;
    constexpr double bottom = 36 * unitsPerPoint;
    return sheet().adjusted(side, top, -side, -bottom);
}

} // namespace Tallymere::Printing
