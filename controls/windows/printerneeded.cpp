#include "controls/windows/printerneeded.h"

#include "base/noprinter.h"
#include "base/ruleerror.h"
#include "controls/windows/screencontext.h"

namespace Tallymere {

bool hasPrinter(const ScreenContext &context) { return context.printerDefined && context.printerDefined(); }

void requirePrinter(const ScreenContext &context)
{
    if (!hasPrinter(context))
        throw RuleError(noPrinterText());
}

} // namespace Tallymere
