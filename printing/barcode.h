#pragma once

#include "printing/page.h"

namespace Tallymere::Printing {

// A text as Code 128: its dark bars, in modules, the width of the narrowest.
struct Barcode
{
    struct Bar
    {
        int left = 0;
        int width = 0;
    };

    int modules = 0; // from the first bar to the last
    QList<Bar> bars{};
};

// Without bars for an empty text and for one with other characters than those that every scanner gives back: letters
// without accents, digits, blanks, signs.
Barcode barcodeOf(const QString &text);

// Its bars from the left end of the room on, with the light zone behind them that belongs to it; what is left of the
// room must be as light. None when even the narrowest bars that scanners are sure of would not fit.
QList<Fill> barcodeFills(const Barcode &barcode, const QRectF &room);

// How wide a text is with its bars as wide as they can be above it, or by itself where there are none for it; in units of
// the page.
double barcodeRoom(const QString &text);

} // namespace Tallymere::Printing
