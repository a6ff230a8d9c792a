#pragma once

#include "transactions/books/postingkind.h"

namespace Tallymere {

// How adjustments are posted: every line, whatever its item's type, to history without a cost and, with its sign, onto
// the balance of the document's location.
PostingKind adjustmentPosting();

} // namespace Tallymere
