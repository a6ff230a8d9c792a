#pragma once

#include "reports/reportdescription.h"

#include <QJsonObject>

namespace Tallymere {

// What the form that a count is written on is asked for.
struct BlankFormChoices
{
    int warehouseId = 0;
    bool byCategory = true; // else by item number
    bool pagePerCategory = false; // only where it is by category
    bool zeroCounts = false; // items without any balance as well
    bool priorQuantities = false; // without them the count is a blind one
    bool barcodes = false; // of the item numbers

    // To be kept and offered again. What is missing is as above.
    QJsonObject toJson() const;
    static BlankFormChoices fromJson(const QJsonObject &kept);
};

// The items that a count of the location lists, in its words, each with a box to write the quantity in. Its rows are
// those of the selection's location, and refuse to be made without one.
ReportDescription blankForm(const BlankFormChoices &choices = {});

void requireCountedLocation(int location); // throws RuleError when none is chosen

} // namespace Tallymere
