#pragma once

#include "controls/windows/screencontext.h"
#include "reports/reportdescription.h"

namespace Tallymere {

// Shows the preview of a report. Raises when the system has no default printer, and what making the report raises.
void showReport(ScreenContext &context, const ReportDescription &report, const ReportSelection &selection,
                QWidget *parent);

// The same to look at, where there need be no printer.
void showReportOnScreen(ScreenContext &context, const ReportDescription &report, const ReportSelection &selection,
                        QWidget *parent);

} // namespace Tallymere
