#pragma once

#include "phonecount/phoneservice.h"

namespace Tallymere {

// The page itself, in the language of the program. It runs its own script alone and loads nothing from anywhere.
PhoneAnswer countingPage();

} // namespace Tallymere
