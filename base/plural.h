#pragma once

#include "engine/values/plural.h"

namespace Tallymere {
using Engine::plural;
}
