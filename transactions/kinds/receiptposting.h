#pragma once

#include "transactions/books/postingkind.h"

namespace Tallymere {

// How receipts are posted: every unposted one whose vendor exists, to history, balances and weighted average cost.
// Costs in the vendor's currency are converted to the home currency.
PostingKind receiptPosting();

} // namespace Tallymere
