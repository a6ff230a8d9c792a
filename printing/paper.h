#pragma once

#include "printing/page.h"

#include <QPageLayout>

namespace Tallymere::Printing {

// The sheet that pages are made for.
struct Paper
{
    QPageSize::PageSizeId size = QPageSize::Letter;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;

    QPageLayout layout() const; // with margins of half an inch for printing; pages bring their own
    QRectF sheet() const; // in units of the page
    QRectF area() const; // what is printed on
};

} // namespace Tallymere::Printing
