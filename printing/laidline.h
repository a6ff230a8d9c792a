#pragma once

#include "printing/page.h"

namespace Tallymere::Printing {

// Measures that lines and pages share.
constexpr double columnGap = 6 * unitsPerPoint;
constexpr double thinRule = 0.5 * unitsPerPoint;
constexpr double thickRule = 1.2 * unitsPerPoint;
double heightOf(TextStyle style); // of a line of text
double baseline(TextStyle style, double top); // of a line of text whose upper edge is at the place

// A line of a report with its texts, measured from its upper edge, before it has a place on a page.
struct LaidLine
{
    double height = 0;
    QList<TextItem> texts{};
    QList<Fill> fills{};

    void addText(double x, double y, TextStyle style, const QString &text, double room); // cut to the room
    void moveDown(double by); // what is in it
    void stretch(double least); // to its least height, with the texts halfway down
    LaidLine takeTop(double room); // what fits; leaves the rest
};

} // namespace Tallymere::Printing
