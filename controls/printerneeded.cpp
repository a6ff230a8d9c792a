#include "controls/printerneeded.h"

#include "base/noprinter.h"
#include "base/ruleerror.h"
#include "controls/screencontext.h"

namespace Tallymere {

void requirePrinter(const ScreenContext &context)
{
    if (context.printerDefined && context.printerDefined())
        return;
    throw RuleError(noPrinterText());
}

} // namespace Tallymere
