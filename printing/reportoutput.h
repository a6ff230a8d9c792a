#pragma once

#include "base/prompts.h"
#include "printing/reportrun.h"

class QIODevice;
class QPagedPaintDevice;
class QPainter;

namespace Tallymere::Printing {

// Makes all pages of a report that is not complete yet, nobody knows how many.
void makeAllPages(ReportRun &run, Progress &progress);

// Paints pages of a complete report on a printer or into a file, from one to another (from 1, both included), backwards
// where the first number is the larger one. On another sheet than they were made for, pages are made as large as it and
// stand in its middle. Throws RuleError when the report is not complete, when the device does not begin or refuses a page.
// The painter is the caller's, who may have to do something before it ends: what has been painted goes to the printer then.
void paintPages(const ReportRun &run, QPainter &painter, QPagedPaintDevice &device, int resolution, int from,
                int to, Progress &progress);

// What of a report is wanted on which sheets.
struct PageChoice
{
    QPageLayout sheet;
    int from = 1;
    int to = 1; // below the first: backwards
};
PageChoice allPages(const ReportRun &run); // of a complete report, on the paper that they are made for

// Writes pages of a complete report as PDF.
void writePdf(const ReportRun &run, QIODevice &output, const PageChoice &choice, Progress &progress);
// The same into a file, which keeps what it held until that is complete. Throws SaveError with the file's name.
void savePdf(const ReportRun &run, const QString &fileName, const PageChoice &choice, Progress &progress);

// A report that is printed lies in the temporary folder until the print system has it. Throws RuleError with why it cannot.
[[noreturn]] void refuseTemporary(const QString &reason);

} // namespace Tallymere::Printing
