#include "base/ruleerror.h"
#include "cli/printjob.h"
#include "cli/texts.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

void sendToPrinter(const QString &pdfFile, const QString &printer, const QString &title, const QPageSize &sheet)
{
    // Without the sheet what is larger than the printer's usual one would be cut off.
    QStringList words{u"-t"_s, title, u"-o"_s, u"media="_s + sheet.key()};
    if (!printer.isEmpty())
        words << u"-d"_s << printer;
    QProcess lp;
    lp.start(u"lp"_s, words << u"--"_s << pdfFile);
    if (!lp.waitForStarted())
        throw RuleError(
            Texts::tr("Nothing can be printed here: the program 'lp' of the system's printing (CUPS) is missing."));
    lp.waitForFinished(-1);
    if (lp.exitStatus() == QProcess::NormalExit && lp.exitCode() == 0)
        return;
    const QString reason = QString::fromLocal8Bit(lp.readAllStandardError()).trimmed();
    throw RuleError(Texts::tr("The report was not printed: %1").arg(reason));
}

} // namespace Tallymere::Cli
