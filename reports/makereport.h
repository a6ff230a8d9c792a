#pragma once

#include "base/prompts.h"
#include "printing/reportrun.h"
#include "reports/reportdescription.h"

namespace Tallymere {

class TDataModuleTallymere;

// A report on the data as they are now, ready to be printed or written: headings and rows are of this one moment, whatever
// others post before the last row is taken. Its headings name what was selected: "Location: " and "     Type: " on one
// line, and "Period: 03/2026". Throws RuleError when the location or the type chosen is gone, EngineError when the store
// fails or the filter does not fit. The progress is that of rows which have to be read at once; see momentRows().
Printing::Report makeReport(TDataModuleTallymere &data, const ReportDescription &report,
                            const ReportSelection &selection, Progress *progress = nullptr);

// The same as pages: on A4 where the host's configuration asks for it, else on Letter paper; with the organization's
// name and the time of day.
std::unique_ptr<Printing::ReportRun> runReport(TDataModuleTallymere &data, const ReportDescription &report,
                                               const ReportSelection &selection, Progress *progress = nullptr);

} // namespace Tallymere
