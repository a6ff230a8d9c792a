#pragma once

#include "controls/windows/guard.h"

class QWidget;

namespace Tallymere {

class TdmLookUpsInv;

// Gives the lookup boxes of a form their lists. A box names its list in the dynamic property "lookupList":
// "Currency", "ItemType", "Warehse" (TdmLookUpsInv::list). To be called before the form's fields are bound.
void setLookupLists(const QWidget &form, TdmLookUpsInv &lookups, const Guard &guard);

} // namespace Tallymere
