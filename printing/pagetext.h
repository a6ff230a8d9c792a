#pragma once

#include "printing/page.h"

namespace Tallymere::Printing {

// What a page says, to be read aloud or copied: its lines from top to bottom, what stands beside each other with a tab
// between.
QString textOf(const Page &page);

} // namespace Tallymere::Printing
