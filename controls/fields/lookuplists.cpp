#include "controls/fields/lookuplists.h"

#include "controls/fields/lookupcombobox.h"
#include "data/lookupsdatainv.h"

namespace Tallymere {

void setLookupLists(const QWidget &form, TdmLookUpsInv &lookups, const Guard &guard)
{
    constexpr int nameWidth = 220;
    const auto boxes = form.findChildren<LookupComboBox *>();
    for (LookupComboBox *box : boxes) {
        const QString name = box->property("lookupList").toString();
        if (name.isEmpty())
            continue;
        const LookupList list = lookups.list(name);
        box->setList(list.table, {{list.nameField, list.title, nameWidth}}, guard);
    }
}

} // namespace Tallymere
