#pragma once

class QMenuBar;

namespace Tallymere {

// Gives the keyboard back to where it was when a menu of the bar closes, by Escape too. By itself the bar keeps it
// after Escape, and the next letter opens a menu. To be called once the bar has its menus.
void leaveMenuBarWithMenus(QMenuBar &bar);

} // namespace Tallymere
