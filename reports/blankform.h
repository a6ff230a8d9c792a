#pragma once

#include "data/lastchoices.h"
#include "reports/reportdescription.h"

namespace Tallymere {

// What the form that a count is written on is asked for.
struct BlankFormChoices
{
    int warehouseId = 0;
    bool byCategory = Settings::ByCategory.byDefault; // else by item number
    bool pagePerCategory = false; // only where it is by category
    bool zeroCounts = false; // items without any balance as well
    bool priorQuantities = false; // without them the count is a blind one
    bool barcodes = false; // of the item numbers

    // To be kept and offered again.
    Choices toKeep() const;
    static BlankFormChoices from(const Choices &kept);
};

// The items that a count of the location lists, in its words, each with a box to write the quantity in. Its rows are
// those of the selection's location, and refuse to be made without one.
ReportDescription blankForm(const BlankFormChoices &choices = {});

void requireCountedLocation(int location); // throws RuleError when none is chosen

} // namespace Tallymere
