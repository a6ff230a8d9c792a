#include "printing/printout.h"

#include "base/ruleerror.h"
#include "printing/printsystem.h"
#include "printing/reportoutput.h"
#include "printing/texts.h"

#include <algorithm>
#include <QPrinter>
#include <QPrinterInfo>

namespace Tallymere::Printing {

void preparePrinter(const ReportRun &run, QPrinter &printer)
{
    printer.setDocName(run.title());
    printer.setPageLayout(run.paper().layout());
}

void printReport(const ReportRun &run, QPrinter &printer, Progress &progress)
{
    int from = 1;
    int to = run.pageCount();
    if (printer.printRange() == QPrinter::PageRange && to > 0) {
        from = std::clamp(printer.fromPage(), from, to);
        to = std::clamp(printer.toPage(), from, to);
    }
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::swap(from, to);
    // The sheet is the user's choice, its orientation the report's.
    QPageLayout layout = run.paper().layout();
    layout.setPageSize(printer.pageLayout().pageSize());
    printer.setPageLayout(layout);
    paintPages(run, printer, printer.resolution(), from, to, progress);
    if (printer.outputFormat() == QPrinter::PdfFormat) // a file
        return;
    const QString reason = jobRefusal();
    if (reason.isEmpty())
        return;
    if (QPrinterInfo::printerInfo(printer.printerName()).isNull())
        throw RuleError(PrintingTexts::tr("The report was not printed: the printer '%1' cannot be found any more.")
                            .arg(printer.printerName()));
    throw RuleError(PrintingTexts::tr("The report was not printed: %1").arg(reason));
}

} // namespace Tallymere::Printing
