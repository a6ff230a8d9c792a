#pragma once

#include "transactions/books/postingkind.h"

namespace Tallymere {

// How usage is posted: lines of stocked items to history, with the cost of their entry, and out of the balance of the
// document's location.
PostingKind usagePosting();

} // namespace Tallymere
