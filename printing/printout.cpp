#include "printing/printout.h"

#include "base/ruleerror.h"
#include "base/savedfile.h"
#include "printing/printsystem.h"
#include "printing/reportoutput.h"
#include "printing/texts.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScopeGuard>
#include <QTemporaryFile>

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

// The sheet is the user's choice, its orientation the report's.
PageChoice choiceOf(const ReportRun &run, const QPrinter &printer)
{
    PageChoice choice = allPages(run);
    choice.sheet.setPageSize(printer.pageLayout().pageSize());
    if (printer.printRange() == QPrinter::PageRange && run.pageCount() > 0) {
        choice.from = std::clamp(printer.fromPage(), 1, run.pageCount());
        choice.to = std::clamp(printer.toPage(), choice.from, run.pageCount());
    }
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::swap(choice.from, choice.to);
    return choice;
}

// Qt does not tell why the temporary folder takes no more of a job, nor that it did not take the end.
void requireTemporaryRoom()
{
    constexpr qint64 needed = 1024 * 1024; // for the fonts, which are written last
    QTemporaryFile file;
    if (!file.open())
        refuseTemporary(file.errorString());
    if (file.write(QByteArray(needed, ' ')) != needed || !file.flush())
        refuseTemporary(reasonOfShortWrite(file));
}

// Qt hands a job over when its painter ends, be it complete or not, and knows of no other end. So what is given up comes to
// an end where nothing is taken.
void printPages(const ReportRun &run, QPrinter &printer, const PageChoice &choice, Progress &progress)
{
    requireTemporaryRoom();
    std::optional<NoPrintSystem> nowhere;
    QPainter painter;
    auto givenUp = qScopeGuard([&] { nowhere.emplace(); });
    try {
        paintPages(run, painter, printer, printer.resolution(), choice.from, choice.to, progress);
    } catch (const RuleError &) {
        requireTemporaryRoom();
        throw;
    }
    givenUp.dismiss();
}

} // namespace

void preparePrinter(const ReportRun &run, QPrinter &printer)
{
    printer.setDocName(run.title());
    setPaper(printer, QPageSize(run.paper().size), run.paper().orientation);
}

bool printsToFile(const QPrinter &printer)
{
    return printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty();
}

int printReport(const ReportRun &run, QPrinter &printer, Progress &progress)
{
    const PageChoice choice = choiceOf(run, printer);
    const int pages = std::abs(choice.to - choice.from) + 1;
    if (printsToFile(printer)) {
        savePdf(run, printer.outputFileName(), choice, progress);
        return pages;
    }
    setPaper(printer, choice.sheet.pageSize(), choice.sheet.orientation());
    printPages(run, printer, choice, progress);
    const QString reason = jobRefusal();
    if (reason.isEmpty())
        return pages;
    if (QPrinterInfo::printerInfo(printer.printerName()).isNull())
        throw RuleError(PrintingTexts::tr("The report was not printed: the printer '%1' cannot be found any more.")
                            .arg(printer.printerName()));
    throw RuleError(PrintingTexts::tr("The report was not printed: %1").arg(reason));
}

} // namespace Tallymere::Printing
