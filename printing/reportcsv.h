#pragma once

#include "base/csvwriter.h"
#include "base/prompts.h"
#include "printing/reportlayout.h"
#include "printing/rowreader.h"

class QIODevice;

namespace Tallymere::Printing {

// A report as CSV or as a sheet (XLSX), a row for each printed line under the names of fields: first "Band" ("opening", "detail",
// "group total", "report total"), then what names the groups, repeated in each row, then the columns. Figures are
// unformatted. Headings have no row. Throws what the rows throw, and RuleError when the device takes no more. How many
// lines there will be only shows in the progress; 0: nobody knows.
void writeReportRows(const ReportLayout &layout, RowReader &rows, RowWriter &writer, Progress &progress,
                     int expectedLines = 0);
void writeReportCsv(const ReportLayout &layout, RowReader &rows, QIODevice &output, Progress &progress,
                    int expectedLines = 0, CsvTexts texts = CsvTexts::AsStored);
// Into a file, which keeps what it held until the report is complete; SaveError names the file.
void saveReportCsv(const ReportLayout &layout, RowReader &rows, const QString &fileName, Progress &progress,
                   int expectedLines = 0, CsvTexts texts = CsvTexts::AsStored);
void saveReportXlsx(const ReportLayout &layout, RowReader &rows, const QString &fileName, Progress &progress,
                    int expectedLines = 0);

} // namespace Tallymere::Printing
