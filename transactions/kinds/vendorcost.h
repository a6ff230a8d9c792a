#pragma once

#include "engine/store/database.h"
#include "engine/values/money.h"

#include <optional>
#include <QDate>

namespace Tallymere {

struct VendorCost
{
    Engine::Money cost; // of a unit, in the vendor's currency
    QDate date;
};

// What an item has cost from a vendor the last time: by the latest posted receipt that took in some of it. Nothing where
// there is none.
std::optional<VendorCost> lastCostFrom(Engine::Database &database, int vendorId, int itemId);

} // namespace Tallymere
