#pragma once

#include "printing/paper.h"

class QPainter;

namespace Tallymere::Printing {

// Paints a page with the painter's units being those of the page. Its footer says "Page 3 of 12"; while the number of
// pages is not known yet (0), "Page 3".
void paintPage(QPainter &painter, const Page &page, const Paper &paper, int number, int count);

} // namespace Tallymere::Printing
