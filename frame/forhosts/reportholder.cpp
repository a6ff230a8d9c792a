#include "frame/forhosts/reportholder.h"

#include "base/noprinter.h"
#include "base/ruleerror.h"

#include <QDir>
#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace Tallymere {

void ReportHolder::loadTemplate()
{
    QFile file(m_templateFile);
    if (!file.open(QIODevice::ReadOnly))
        throw RuleError(tr("The report template file '%1' cannot be read...\n%2")
                            .arg(QDir::toNativeSeparators(m_templateFile), file.errorString()));
    setHtml(QString::fromUtf8(file.readAll()));
}

void ReportHolder::printOut(QWidget *window)
{
    if (QPrinterInfo::defaultPrinter().isNull())
        throw RuleError(noPrinterText());
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(objectName());
    if (m_showPrintDialog && QPrintDialog(&printer, window).exec() != QDialog::Accepted)
        return;
    print(&printer);
    if (printer.printerState() == QPrinter::Error)
        throw RuleError(tr("The printer '%1' has not taken the report.").arg(printer.printerName()));
}

} // namespace Tallymere
