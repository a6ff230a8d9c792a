#include "printing/pagesearch.h"

namespace Tallymere::Printing {

QList<QRectF> findText(const Page &page, const QString &text)
{
    QList<QRectF> places;
    if (text.isEmpty())
        return places;
    for (const TextItem &item : page.texts) {
        const TextMeasure &measure = TextMeasure::of(item.style);
        for (qsizetype at = item.text.indexOf(text, 0, Qt::CaseInsensitive); at >= 0;
             at = item.text.indexOf(text, at + text.size(), Qt::CaseInsensitive)) {
            const double left = item.x + measure.width(item.text.left(at)) * item.squeeze;
            const double width = measure.width(item.text.mid(at, text.size())) * item.squeeze;
            places.append(QRectF(left, item.y - measure.ascent(), width, measure.lineHeight()));
        }
    }
    return places;
}

} // namespace Tallymere::Printing
