#pragma once

#include "printing/textstyle.h"

#include <QList>
#include <QRectF>
#include <QString>

class QDataStream;

namespace Tallymere::Printing {

// Everything on a page is measured in twentieths of a point, from the paper's upper left corner.
constexpr double unitsPerPoint = 20;
constexpr double unitsPerInch = 72 * unitsPerPoint;

struct TextItem
{
    float x = 0; // left end
    float y = 0; // baseline
    TextStyle style = TextStyle::Body;
    float squeeze = 1; // horizontal scale, for a number that its column has no room for
    QString text;
};

struct Fill // a rule or a bar
{
    QRectF area;
    bool gray = false;
};

// A page as it is shown, printed and searched, except for its footer, which names the number of pages.
struct Page
{
    QList<TextItem> texts;
    QList<Fill> fills;
};

QDataStream &operator<<(QDataStream &stream, const Page &page);
QDataStream &operator>>(QDataStream &stream, Page &page);

} // namespace Tallymere::Printing
