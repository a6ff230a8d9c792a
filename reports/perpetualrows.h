#pragma once

#include "reports/reportdescription.h"

namespace Tallymere {

// For each line of the balance query an opening row and the movements from the selection's period on. "Balance" is, in
// the opening row, the quantity on hand with all those movements backed out, and then what each movement makes of it.
// "TransTypeName", "TransDate", "TransDescription" and "Quantity" are those of the history.
Printing::RowReaderPtr perpetualRows(Engine::Database &database, const ReportDescription &report,
                                     const ReportSelection &selection);

// A row for each line of the balance query, about the one period of the selection: "Receipts" (type 3), "Adjustments"
// (1), "Sales" (2 and 5); "ClosingBalance" is the quantity on hand with everything after the period backed out, and
// "OpeningBalance" = ClosingBalance - Receipts - Adjustments + Sales. A "Mfg Receipt" (4) within the period is counted
// nowhere, and so stays in both balances.
Printing::RowReaderPtr perpetualSummaryRows(Engine::Database &database, const ReportDescription &report,
                                            const ReportSelection &selection);

} // namespace Tallymere
