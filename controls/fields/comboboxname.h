#pragma once

namespace Tallymere {

// Lets accessibility tools know the drop-down boxes of the screens by their labels, whatever is chosen in them; the
// choice is their text. Left to itself Qt calls such a box by its choice on some systems, so that its name changes with
// every record. May be called for every box; the first call does it for all of them: look-up boxes, those that show a
// field, and others that say so in the property "keepsName".
void keepComboBoxNames();

} // namespace Tallymere
