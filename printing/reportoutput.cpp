#include "printing/reportoutput.h"

#include "base/ruleerror.h"
#include "base/savedfile.h"
#include "printing/pagepainter.h"
#include "printing/texts.h"

#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace Tallymere::Printing {

void paintPages(const ReportRun &run, QPagedPaintDevice &device, int resolution, int from, int to,
                Progress &progress)
{
    device.setPageLayout(run.paper().layout());
    QPainter painter;
    if (!painter.begin(&device))
        throw RuleError(PrintingTexts::tr("The report cannot be printed: the printer or the file takes nothing."));
    painter.scale(resolution / unitsPerInch, resolution / unitsPerInch);
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

void savePdf(ReportRun &run, const QString &fileName, Progress &progress)
{
    run.makePages();
    saveFile(fileName, [&](QIODevice &file) {
        QPdfWriter writer(&file);
        writer.setResolution(static_cast<int>(unitsPerInch));
        writer.setTitle(run.title());
        writer.setCreator(u"Tallymere"_s);
        paintPages(run, writer, writer.resolution(), 1, run.pageCount(), progress);
    });
}

} // namespace Tallymere::Printing
