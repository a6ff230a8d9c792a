#include "printing/printout.h"

#include "base/ruleerror.h"
#include "printing/printsystem.h"
#include "printing/reportoutput.h"
#include "printing/texts.h"

#include <algorithm>
#include <QPrinter>
#include <QPrinterInfo>

namespace Tallymere::Printing {

namespace {

// One after the other: a layout as a whole is refused by a printer that cannot print up to the edge. The sheet is as the
// printer has it where it knows no such size.
void setPaper(QPrinter &printer, const QPageSize &size, QPageLayout::Orientation orientation)
{
    printer.setFullPage(true); // pages bring their own margins
    printer.setPageSize(size);
    printer.setPageOrientation(orientation);
}

} // namespace

void preparePrinter(const ReportRun &run, QPrinter &printer)
{
    printer.setDocName(run.title());
    setPaper(printer, QPageSize(run.paper().size), run.paper().orientation);
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
    setPaper(printer, printer.pageLayout().pageSize(), run.paper().orientation);
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
