#pragma once

#include "transactions/entry/documententry.h"

#include <vector>

namespace Tallymere {

// Goods that are to be bought of a vendor.
struct PlannedReceipt
{
    struct Line
    {
        int item = 0;
        double quantity = 0;
    };

    int vendor = 0; // 0: to be chosen
    int location = 0; // 0: to be chosen
    std::vector<Line> lines;
};

// Begins a receipt of the goods in the open entry of receipts, of today and unposted, for somebody to look over: each line at
// what the item's last receipt says, in the currency of its vendor, or else at its average cost.
//
// All rules of entry hold. Throws RuleError when the vendor or a line is refused, which is named; SilentAbort when a question
// is answered with no. Nothing of the receipt stays then.
void beginPlannedReceipt(DocumentEntry &entry, const PlannedReceipt &plan);

} // namespace Tallymere
