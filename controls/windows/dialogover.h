#pragma once

class QWidget;

namespace Tallymere {

// The dialog that stands over the window and keeps it from being used; null when there is none, or no window. Keys and
// mouse do not reach such a window, but an assistive program presses its buttons all the same.
QWidget *dialogOver(const QWidget *window);

// Whether one does, so that nothing may be done in the window now: what has opened the dialog goes on there when it is
// answered. The dialog comes to the front.
bool isHeldByDialog(const QWidget *window);

} // namespace Tallymere
