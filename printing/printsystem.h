#pragma once

#include <optional>
#include <QPageSize>
#include <QString>

class QIODevice;

namespace Tallymere::Printing {

// The name of a printer of the system; an empty one stands for the default printer. Throws RuleError when there is no such
// printer, with what the system says, or none at all.
QString printerNamed(const QString &printer);

// Hands a PDF document, from its beginning, to a printer of the system under a title, for sheets of its size. Throws
// RuleError with what the system says when the printer is not there any more, or does not take the job.
void sendToPrinter(QIODevice &pdf, const QString &printer, const QString &title, const QPageSize &sheet);

// The size of the sheets that a printer takes when it is not told otherwise; an empty name stands for the default printer.
// Nothing when there is no such printer, or when the system does not know.
std::optional<QPageSize> sheetOf(const QString &printer);

// While an object lives, the print system takes nothing from this thread.
class NoPrintSystem
{
public:
    NoPrintSystem();
    ~NoPrintSystem();
    NoPrintSystem(const NoPrintSystem &) = delete;
    NoPrintSystem &operator=(const NoPrintSystem &) = delete;
};

// Why the print system did not take the last job that a QPrinter handed to it on this thread; empty when it did. Qt does
// not tell.
QString jobRefusal();

} // namespace Tallymere::Printing
