#pragma once

#include <QPageSize>
#include <QString>

namespace Tallymere::Printing {

// Hands a PDF file to a printer of the system under a title, for sheets of its size; an empty name stands for the default
// printer. Throws RuleError with what the system says when there is no such printer, when there is none at all, or when
// it does not take the job.
void sendToPrinter(const QString &pdfFile, const QString &printer, const QString &title, const QPageSize &sheet);

// Why the print system did not take the last job that a QPrinter handed to it on this thread; empty when it did. Qt does
// not tell.
QString jobRefusal();

} // namespace Tallymere::Printing
