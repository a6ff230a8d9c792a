#pragma once

#include "reports/reportquery.h"

namespace Tallymere {

// The rows of a query of balances with "UnitCost" and the value "ItemValue" (where the query has single balances,
// "ItemWhseValue"). The unit cost is the item's standard cost where the type's costing method is 2, else its weighted
// average cost; the value is quantity x unit cost to the cent, by roundIt.
ReportDescription::Rows valueRows(const ReportQuery &balances);

} // namespace Tallymere
