#pragma once

class QWidget;

namespace Tallymere {

// Leads Tab to the chosen one of the radio buttons that stand together in a form, from where the arrow keys choose. By
// itself Tab comes to the first, whichever is chosen, and arrow keys only go from one to the next.
void leadTabToChosen(const QWidget &form);

} // namespace Tallymere
