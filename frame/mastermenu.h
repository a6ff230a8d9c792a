#pragma once

class QMainWindow;
class QMenu;

namespace Tallymere {

// Adds the lists of the master data to the Edit menu of the main window: the main ones before its menu "Other", the
// rest in that. The entries name their action in the dynamic property "action", as those of the layout do.
void addMasterEntries(QMenu &edit, QMenu &other, QMainWindow &window);

} // namespace Tallymere
