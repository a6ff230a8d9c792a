#pragma once

#include "transactions/entry/documententry.h"

namespace Tallymere {

// Takes back what a posted document has done: begins a new one in the open entry, of today and unposted, with what the posted
// one says about itself, and each of its lines with the sign of its quantity turned and at the cost that it had. A free
// description says what is taken back. Nothing moves before the new one is posted.
//
// All rules of entry hold. Throws RuleError when there is no such document, it is not posted, or a line is refused, which is
// named; SilentAbort when a question is answered with no. Nothing of the new one stays then.
void beginReversal(DocumentEntry &entry, int key);

} // namespace Tallymere
