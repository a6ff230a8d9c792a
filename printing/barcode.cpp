#include "printing/barcode.h"

#include "printing/zintsymbol.h"

#include <algorithm>
#include <cmath>

namespace Tallymere::Printing {

namespace {

constexpr int quietModules = 10; // that stay light behind the last bar

// Bars begin and end where printers have dots (at 300, 600 and 1200 to the inch), so that no bar is a dot wider than
// another that should be alike.
constexpr double dot = unitsPerInch / 600;
constexpr int mostDots = 6; // of a module: 0.25 mm
constexpr int fewestDots = 4;

bool isReadBack(QChar character) { return character >= u' ' && character <= u'~'; }

} // namespace

Barcode barcodeOf(const QString &text)
{
    if (text.isEmpty() || !std::ranges::all_of(text, isReadBack))
        return {};
    const SymbolPtr symbol(ZBarcode_Create());
    if (!symbol)
        return {};
    symbol->symbology = BARCODE_CODE128;
    symbol->show_hrt = 0;
    const QByteArray bytes = text.toLatin1();
    const auto *source = reinterpret_cast<const unsigned char *>(bytes.constData());
    if (ZBarcode_Encode_and_Buffer_Vector(symbol.get(), source, static_cast<int>(bytes.size()), 0) >= ZINT_ERROR
        || !symbol->vector)
        return {};
    Barcode barcode{symbol->width};
    const double scale = symbol->width / static_cast<double>(symbol->vector->width);
    for (const zint_vector_rect *bar = symbol->vector->rectangles; bar; bar = bar->next)
        barcode.bars.append({qRound(bar->x * scale), qRound(bar->width * scale)});
    return barcode;
}

QList<Fill> barcodeFills(const Barcode &barcode, const QRectF &room)
{
    const int modules = barcode.modules + quietModules;
    const int dots = std::min(mostDots, static_cast<int>(room.width() / (modules * dot)));
    if (dots < fewestDots)
        return {};
    const double module = dots * dot;
    // A hair narrower on both sides, as some printers blacken each dot that a bar touches.
    constexpr double hair = dot / 10;
    const double left = std::ceil(room.left() / dot) * dot;
    QList<Fill> fills;
    for (const Barcode::Bar &bar : barcode.bars)
        fills.append(
            {QRectF(left + bar.left * module + hair, room.top(), bar.width * module - 2 * hair, room.height())});
    return fills;
}

double barcodeRoom(const QString &text)
{
    const double textWidth = TextMeasure::of(TextStyle::Body).width(text);
    const Barcode barcode = barcodeOf(text);
    if (barcode.bars.isEmpty())
        return textWidth;
    // A dot more, as they begin at a whole one.
    return std::max(textWidth, ((barcode.modules + quietModules) * mostDots + 1) * dot);
}

} // namespace Tallymere::Printing
