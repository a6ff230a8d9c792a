#pragma once

#include "engine/store/database.h"
#include "host/sample/chance.h"

#include <QString>
#include <vector>

namespace Tallymere {

// Fills the catalogue of items up to the count with further products, and the locations up to theirs.
void fillCatalogue(Engine::Database &database, int itemCount, Chance &chance);
void fillLocations(Engine::Database &database, int locationCount);

} // namespace Tallymere
