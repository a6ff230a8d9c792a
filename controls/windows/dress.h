#pragma once

class QWidget;

namespace Tallymere {

// What forms have from their designer and windows do without: frames around what white space and a heading keep together,
// a tab where there is but one page. Once for each window, before it is shown.
void dress(QWidget &window);

} // namespace Tallymere
