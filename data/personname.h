#pragma once

#include "engine/records/dataset.h"

namespace Tallymere {

// "Anna Berg" of the fields FirstName and LastName; the one that is there when the other is empty.
Engine::Value fullName(const Engine::DataSet &person);

} // namespace Tallymere
