#pragma once

#include "engine/records/dataset.h"

namespace Tallymere {

// Adds Periodppyyyy ("3/2004"), calculated of GLPeriod and GLYear, to a set that is not open yet. What of the two is null
// shows as nothing.
void addPeriod(Engine::DataSet &set);

} // namespace Tallymere
