#pragma once

#include "printing/page.h"

namespace Tallymere::Printing {

// Where a text stands on a page, without regard to letter case, in the order in which the page was made.
QList<QRectF> findText(const Page &page, const QString &text);

} // namespace Tallymere::Printing
