#include "printing/laidline.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Tallymere::Printing {

double heightOf(TextStyle style) { return TextMeasure::of(style).lineHeight(); }

double baseline(TextStyle style, double top) { return top + TextMeasure::of(style).ascent() * 0.95; }

void LaidLine::addText(double x, double y, TextStyle style, const QString &text, double room)
{
    if (!text.isEmpty())
        texts.append(
            {static_cast<float>(x), static_cast<float>(y), style, 1, TextMeasure::of(style).cut(text, room)});
}

void LaidLine::moveDown(double by)
{
    height += by;
    for (TextItem &text : texts)
        text.y += static_cast<float>(by);
    for (Fill &fill : fills)
        fill.area.translate(0, by);
}

void LaidLine::stretch(double least)
{
    if (height >= least)
        return;
    for (TextItem &text : texts)
        text.y += static_cast<float>((least - height) / 2);
    height = least;
}

LaidLine LaidLine::takeTop(double room)
{
    const double step = heightOf(TextStyle::Body);
    LaidLine top{std::max(std::floor(room / step), 1.0) * step};
    const auto isBelow = [&top](const TextItem &text) { return text.y > top.height; };
    std::ranges::remove_copy_if(texts, std::back_inserter(top.texts), isBelow);
    texts.removeIf([&isBelow](const TextItem &text) { return !isBelow(text); });
    for (TextItem &text : texts)
        text.y -= static_cast<float>(top.height);
    for (Fill &fill : fills) {
        fill.area.translate(0, -top.height);
        fill.area.setTop(std::max(0.0, fill.area.top()));
    }
    height -= top.height;
    return top;
}

} // namespace Tallymere::Printing
