#pragma once

#include "base/prompts.h"

class QPrinter;

namespace Tallymere::Printing {

class ReportRun;

// Sets a printer to the report's paper and name, before the user chooses otherwise.
void preparePrinter(const ReportRun &run, QPrinter &printer);

bool printsToFile(const QPrinter &printer); // its outputFileName()

// Prints those pages of a complete report that the printer's range names, on its paper and with what else is set on it, or
// writes them to the file that it is set to; gives how many. Throws RuleError when there is no printer, and with the words
// of the print system when that does not take the job: the printer is gone, or refuses; SaveError when the file cannot be
// written. What the progress throws gives the job up.
int printReport(const ReportRun &run, QPrinter &printer, Progress &progress);

} // namespace Tallymere::Printing
