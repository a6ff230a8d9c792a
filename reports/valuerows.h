#pragma once

#include "reports/reportquery.h"

namespace Tallymere {

// The rows of a query of balances with "UnitCost" and the value "ItemValue" (where the query has single balances,
// "ItemWhseValue"): by unitValue and amountOf.
ReportDescription::Rows valueRows(const ReportQuery &balances);

} // namespace Tallymere
