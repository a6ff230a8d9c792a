#pragma once

#include "printing/reportcsv.h"
#include "printing/reportrun.h"
#include "tests/support/files.h"
#include "tests/support/spokenprompts.h"

// What a report shows, as CSV.
inline QByteArray csvOf(const Tallymere::Printing::Report &report)
{
    CountedProgress progress;
    return writtenBy([&](QIODevice &file) { writeReportCsv(report.layout, *report.rows, file, progress); });
}
