#pragma once

namespace Tallymere {

struct ScreenContext;

bool hasPrinter(const ScreenContext &context); // a default one

// Before a report is shown or printed: raises when the system has no default printer.
void requirePrinter(const ScreenContext &context);

} // namespace Tallymere
