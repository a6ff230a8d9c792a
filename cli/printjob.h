#pragma once

#include <QPageSize>
#include <QString>

namespace Tallymere::Cli {

// Hands a PDF file to the system's printing under a title, for sheets of its size; an empty name stands for the default
// printer. Throws RuleError with what the system says when there is no such printer, or none at all.
void sendToPrinter(const QString &pdfFile, const QString &printer, const QString &title, const QPageSize &sheet);

} // namespace Tallymere::Cli
