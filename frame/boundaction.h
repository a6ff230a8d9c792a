#pragma once

class QAbstractButton;
class QAction;

namespace Tallymere {

// Lets a button or a menu item stand for an action: it triggers it, shows its hint (the status tip) and follows its
// enabled state. One without a text of its own takes the action's.
void bindToAction(QAbstractButton &button, QAction &action);
void bindToAction(QAction &menuItem, QAction &action);

} // namespace Tallymere
