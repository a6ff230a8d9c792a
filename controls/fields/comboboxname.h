#pragma once

class QWidget;

namespace Tallymere {

// Lets accessibility tools know the drop-down boxes of the screens by their labels, whatever is chosen in them; the
// choice is their text. Left to itself Qt calls such a box by its choice on some systems, so that its name changes with
// every record. From the first call on all boxes in windows of this system are known so, not those of a host; and those that
// the window has already, which Qt may have looked at while they were being made.
void keepComboBoxNames(const QWidget &window);

} // namespace Tallymere
