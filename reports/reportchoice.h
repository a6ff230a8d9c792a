#pragma once

#include "reports/reportdescription.h"

namespace Tallymere {

// The report that a user wants, and what it is to be about.
struct ReportChoice
{
    int report = 0; // index in ReportList::offered()
    ReportSelection selection{}; // more may be chosen than the report takes
};

// Of what is chosen that which a report can be asked for.
ReportSelection takenBy(const ReportDescription::Parameters &parameters, const ReportSelection &chosen);

// The first period of a report as it is typed: a number from 1 to 12, and a year in two digits (50 to 99 are 1950 to
// 1999, 0 to 49 are 2000 to 2049) or in full. Anything else throws RuleError with the column "GLPeriod" or "GLYear".
int periodFromText(const QString &text);
int yearFromText(const QString &text);

} // namespace Tallymere
