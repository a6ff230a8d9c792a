#pragma once

#include "engine/plural.h"

namespace Tallymere {
using Engine::plural;
}
