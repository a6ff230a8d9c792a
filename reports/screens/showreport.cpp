#include "reports/screens/showreport.h"

#include "controls/windows/printerneeded.h"
#include "controls/windows/progressbox.h"
#include "controls/windows/screenmetrics.h"
#include "reports/makereport.h"
#include "reports/screens/preview.h"
#include "reports/texts.h"

#include <QApplication>

namespace Tallymere {

TfrmPreview &showReport(ScreenContext &context, const ReportDescription &report, const ReportSelection &selection,
                        QWidget *parent)
{
    requirePrinter(context);
    return showReportOnScreen(context, report, selection, parent);
}

TfrmPreview &showReportOnScreen(ScreenContext &context, const ReportDescription &report,
                                const ReportSelection &selection, QWidget *parent)
{
    const WaitCursor hourglass;
    ProgressBox reading(QApplication::activeWindow(), ReportsTexts::tr("Reading %1").arg(report.layout.title));
    auto *preview = new TfrmPreview(context, runReport(context.data, report, selection, &reading), parent);
    preview->offerCsv([&context, report, selection](Progress &progress) {
        return makeReport(context.data, report, selection, &progress);
    });
    preview->show();
    return *preview;
}

} // namespace Tallymere
