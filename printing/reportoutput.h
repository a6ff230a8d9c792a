#pragma once

#include "base/prompts.h"
#include "printing/reportrun.h"

class QPagedPaintDevice;

namespace Tallymere::Printing {

// Paints pages of a complete report on a printer or into a file, from one to another (from 1, both included), backwards
// where the first number is the larger one. On another sheet than they were made for, pages are made as large as it and
// stand in its middle. Throws RuleError when the report is not complete, when the device does not begin or refuses a page.
void paintPages(const ReportRun &run, QPagedPaintDevice &device, int resolution, int from, int to,
                Progress &progress);

// Makes what is missing of a report and writes it to a PDF file, which keeps what it held until that is complete.
// Throws RuleError with the file's name.
void savePdf(ReportRun &run, const QString &fileName, Progress &progress);

} // namespace Tallymere::Printing
