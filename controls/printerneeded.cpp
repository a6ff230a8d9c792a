#include "controls/printerneeded.h"

#include "base/ruleerror.h"
#include "controls/screencontext.h"
#include "controls/texts.h"

namespace Tallymere {

void requirePrinter(const ScreenContext &context)
{
    if (context.printerDefined && context.printerDefined())
        return;
    throw RuleError(ControlsTexts::tr("You do not have a default printer defined.\n\n"
                                      "To preview or print reports a printer must be defined, though not "
                                      "necessarily attached."));
}

} // namespace Tallymere
