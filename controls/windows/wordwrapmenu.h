#pragma once

class QWidget;

namespace Tallymere {

// Gives the notes of a form their pop-up menu with the one item "Word Wrap", which is checked at first. Wrapped lines
// come with a vertical scroll bar, unwrapped ones with both. Notes are the plain text edits with the dynamic property
// "wordWrapMenu".
void connectWordWrapMenus(const QWidget &form);

} // namespace Tallymere
