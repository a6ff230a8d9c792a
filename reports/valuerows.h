#pragma once

#include "reports/reportdescription.h"

namespace Tallymere {

// The rows of the balance query with "UnitCost" and the value "ItemValue" (where the query has single balances,
// "ItemWhseValue"). The unit cost is the item's standard cost where the type's costing method is 2, else its weighted
// average cost; the value is quantity x unit cost to the cent, by roundIt.
Printing::RowReaderPtr valueRows(Engine::Database &database, const ReportDescription &report,
                                 const ReportSelection &selection);

} // namespace Tallymere
