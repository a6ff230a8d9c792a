#include "master/organization.h"

namespace Tallymere {

void readOrganization(MasterRecord &record)
{
    // Reading anew would save or drop the changes without asking.
    if (record.table().isEditing())
        return;
    record.table().refresh();
    if (record.table().isEmpty())
        record.newRecord();
}

} // namespace Tallymere
