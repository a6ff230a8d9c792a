#pragma once

#include "reports/reportquery.h"

namespace Tallymere {

// For each row of a query of balances an opening row and the movements from the selection's period on. "Balance" is, in
// the opening row, the quantity on hand with all those movements backed out, and then what each movement makes of it.
// "TransTypeName", "TransDate", "TransDescription" and "Quantity" are those of the history.
ReportDescription::Rows perpetualRows(const ReportQuery &balances);

// A row for each of the balances, about the one period of the selection: "Receipts", "Adjustments" and "Sales", each the
// movements of the types that transTypes() counts there; "ClosingBalance" is the quantity on hand with everything after
// the period backed out, and "OpeningBalance" = ClosingBalance - Receipts - Adjustments + Sales. A "Mfg Receipt" within
// the period is counted nowhere, and so stays in both balances.
ReportDescription::Rows perpetualSummaryRows(const ReportQuery &balances);

} // namespace Tallymere
