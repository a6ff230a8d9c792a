#pragma once

#include "base/prompts.h"
#include "controls/windows/filechoice.h"

namespace Tallymere {

// The file that a report is proposed to be saved as, by its title.
FileChoice pdfFile(const QString &title);
FileChoice csvFile(const QString &title);
FileChoice xlsxFile(const QString &title);

// Has a file that the user names written, over a window that shows how far it is. The file as it is told to the user; empty
// when he has given up.
QString saveReportFile(const ScreenContext &context, QWidget *window, const FileChoice &choice,
                       const std::function<void(const QString &file, Progress &progress)> &write);

} // namespace Tallymere
