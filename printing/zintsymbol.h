#pragma once

#include <memory>
#include <zint.h>

namespace Tallymere::Printing {

struct DeleteSymbol
{
    void operator()(zint_symbol *symbol) const { ZBarcode_Delete(symbol); }
};

// What zint makes of a text, in memory.
using SymbolPtr = std::unique_ptr<zint_symbol, DeleteSymbol>;

} // namespace Tallymere::Printing
