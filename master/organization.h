#pragma once

#include "master/masterrecord.h"

namespace Tallymere {

// Brings a record of the kind company() to what is stored, or begins the first one where nothing is. What is being
// edited stays as it is.
void readOrganization(MasterRecord &record);

} // namespace Tallymere
