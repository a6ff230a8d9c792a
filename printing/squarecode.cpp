#include "printing/squarecode.h"

#include "printing/zintsymbol.h"

namespace Tallymere::Printing {

namespace {

constexpr int mediumRepair = 2; // up to 15 % of it may be unreadable

} // namespace

SquareCode squareCodeOf(const QString &text)
{
    const SymbolPtr symbol(ZBarcode_Create());
    if (!symbol)
        return {};
    symbol->symbology = BARCODE_QRCODE;
    symbol->input_mode = UNICODE_MODE;
    symbol->option_1 = mediumRepair;
    const QByteArray bytes = text.toUtf8();
    const auto *source = reinterpret_cast<const unsigned char *>(bytes.constData());
    if (ZBarcode_Encode(symbol.get(), source, static_cast<int>(bytes.size())) >= ZINT_ERROR)
        return {};
    SquareCode code{symbol->width};
    for (int row = 0; row < symbol->rows; ++row) {
        for (int column = 0; column < symbol->width; ++column)
            code.dark.append((symbol->encoded_data[row][column / 8] >> (column % 8)) & 1);
    }
    return code;
}

} // namespace Tallymere::Printing
