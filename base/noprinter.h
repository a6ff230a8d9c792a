#pragma once

#include "base/texts.h"

namespace Tallymere {

// What is said, on a screen or not, where a report is wanted and the system has no default printer.
inline QString noPrinterText()
{
    return BaseTexts::tr("You do not have a default printer defined.\n\n"
                         "To preview or print reports a printer must be defined, though not necessarily attached.");
}

} // namespace Tallymere
