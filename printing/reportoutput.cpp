#include "printing/reportoutput.h"

#include "base/ruleerror.h"
#include "base/savedfile.h"
#include "printing/pagepainter.h"
#include "printing/texts.h"

#include <algorithm>
#include <cmath>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace Tallymere::Printing {

namespace {

// From units of the page to dots of the sheet.
void fitToSheet(QPainter &painter, const QSizeF &sheet, const QSizeF &page, int resolution)
{
    constexpr double sameSize = 0.005; // sizes of paper are rounded
    double fit = std::min(sheet.width() / page.width(), sheet.height() / page.height());
    if (std::abs(fit - 1) < sameSize)
        fit = 1;
    const double scale = resolution / unitsPerInch;
    painter.scale(scale, scale);
    if (fit != 1)
        painter.translate((sheet.width() - page.width() * fit) / 2, (sheet.height() - page.height() * fit) / 2);
    painter.scale(fit, fit);
}

} // namespace

void makeAllPages(ReportRun &run, Progress &progress)
{
    constexpr int milliseconds = 20;
    progress.start(0);
    while (!run.makePages(QDeadlineTimer(milliseconds)))
        progress.step();
    progress.finish();
}

void paintPages(const ReportRun &run, QPainter &painter, QPagedPaintDevice &device, int resolution, int from,
                int to, Progress &progress)
{
    if (!run.isComplete())
        throw RuleError(PrintingTexts::tr("The report cannot be printed: its pages could not be made to the end."));
    if (!painter.begin(&device))
        throw RuleError(PrintingTexts::tr("The report cannot be printed: the printer or the file takes nothing."));
    fitToSheet(painter, device.pageLayout().fullRect(QPageLayout::Point).size() * unitsPerPoint,
               run.paper().sheet().size(), resolution);
    const int step = from <= to ? 1 : -1;
    progress.start((to - from) * step + 1);
    for (int number = from; number != to + step; number += step) {
        if (number != from && !device.newPage())
            throw RuleError(PrintingTexts::tr("Page %1 cannot be printed.").arg(number));
        paintPage(painter, run.page(number - 1), run.paper(), number, run.pageCount());
        progress.step();
    }
    if (!painter.end())
        throw RuleError(PrintingTexts::tr("The report could not be printed to its end."));
    progress.finish();
}

void writePdf(const ReportRun &run, QIODevice &output, const PageChoice &choice, Progress &progress)
{
    QPdfWriter writer(&output);
    writer.setPageLayout(choice.sheet);
    writer.setResolution(static_cast<int>(unitsPerInch));
    writer.setTitle(run.title());
    writer.setCreator(u"Tallymere"_s);
    QPainter painter;
    paintPages(run, painter, writer, writer.resolution(), choice.from, choice.to, progress);
}

void savePdf(const ReportRun &run, const QString &fileName, const PageChoice &choice, Progress &progress)
{
    saveFile(fileName, [&](QIODevice &file) { writePdf(run, file, choice, progress); });
}

void refuseTemporary(const QString &reason)
{
    throw RuleError(PrintingTexts::tr("The report cannot be kept in '%1' until it is printed...\n%2")
                        .arg(QDir::toNativeSeparators(QDir::tempPath()), reason));
}

PageChoice allPages(const ReportRun &run) { return {run.paper().layout(), 1, run.pageCount()}; }

} // namespace Tallymere::Printing
