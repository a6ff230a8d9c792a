#include "reports/screens/showreport.h"

#include "controls/printerneeded.h"
#include "controls/screenmetrics.h"
#include "reports/makereport.h"
#include "reports/screens/preview.h"

namespace Tallymere {

void showReport(ScreenContext &context, const ReportDescription &report, const ReportSelection &selection,
                QWidget *parent)
{
    requirePrinter(context);
    const WaitCursor hourglass;
    auto *preview = new TfrmPreview(context, runReport(context.data, report, selection), parent);
    preview->offerCsv([&context, report, selection] { return makeReport(context.data, report, selection); });
    preview->show();
}

} // namespace Tallymere
