#pragma once

#include "controls/windows/screencontext.h"
#include "reports/reportdescription.h"

namespace Tallymere {

class TfrmPreview;

// Shows the preview of a report, which frees itself when it is closed. Raises when the system has no default printer, and what making the report raises.
TfrmPreview &showReport(ScreenContext &context, const ReportDescription &report, const ReportSelection &selection,
                        QWidget *parent);

// The same to look at, where there need be no printer.
TfrmPreview &showReportOnScreen(ScreenContext &context, const ReportDescription &report,
                                const ReportSelection &selection, QWidget *parent);

} // namespace Tallymere
