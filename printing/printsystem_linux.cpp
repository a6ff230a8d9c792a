#include "printing/printsystem.h"

#include "base/noprinter.h"
#include "base/ruleerror.h"
#include "printing/texts.h"

#include <cups/cups.h>
#include <QFile>

namespace Tallymere::Printing {

namespace {

// The printer with the options that the user has set for it.
class Destination
{
public:
    explicit Destination(const QString &printer)
        : m_dest(cupsGetNamedDest(CUPS_HTTP_DEFAULT, printer.isEmpty() ? nullptr : printer.toUtf8().constData(),
                                  nullptr))
    {
    }
    ~Destination() { cupsFreeDests(m_dest ? 1 : 0, m_dest); }
    Destination(const Destination &) = delete;
    Destination &operator=(const Destination &) = delete;

    bool exists() const { return m_dest; }
    void setOption(const char *name, const QByteArray &value)
    {
        m_dest->num_options = cupsAddOption(name, value, m_dest->num_options, &m_dest->options);
    }
    bool print(const QString &file, const QString &title)
    {
        return cupsPrintFile(m_dest->name, QFile::encodeName(file), title.toUtf8(), m_dest->num_options,
                             m_dest->options)
            != 0;
    }

private:
    cups_dest_t *m_dest;
};

} // namespace

void sendToPrinter(const QString &pdfFile, const QString &printer, const QString &title, const QPageSize &sheet)
{
    Destination destination(printer);
    if (printer.isEmpty() && !destination.exists())
        throw RuleError(noPrinterText());
    if (destination.exists()) {
        // Otherwise what is larger than the printer's usual sheet is cut off.
        destination.setOption("media", sheet.key().toUtf8());
        if (destination.print(pdfFile, title))
            return;
    }
    throw RuleError(
        PrintingTexts::tr("The report was not printed: %1").arg(QString::fromUtf8(cupsLastErrorString())));
}

// Qt ends a job with one call of CUPS, whose outcome the library keeps for each thread.
QString jobRefusal()
{
    return cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE ? QString() : QString::fromUtf8(cupsLastErrorString());
}

} // namespace Tallymere::Printing
