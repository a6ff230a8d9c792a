#include "printing/printsystem.h"

#include "base/noprinter.h"
#include "base/ruleerror.h"
#include "printing/texts.h"

#include <cups/cups.h>
#include <cups/pwg.h>
#include <QIODevice>
#include <QSizeF>

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
    QString name() const { return QString::fromUtf8(m_dest->name); }
    void setOption(const char *name, const QByteArray &value)
    {
        m_dest->num_options = cupsAddOption(name, value, m_dest->num_options, &m_dest->options);
    }

    bool print(QIODevice &pdf, const QByteArray &title)
    {
        const int job = cupsCreateJob(CUPS_HTTP_DEFAULT, m_dest->name, title, m_dest->num_options, m_dest->options);
        if (job == 0)
            return false;
        if (send(pdf, job, title))
            return true;
        cupsCancelJob(m_dest->name, job);
        return false;
    }

    std::optional<QPageSize> sheet() const
    {
        for (const char *option : {"media", "PageSize"}) {
            const char *name = cupsGetOption(option, m_dest->num_options, m_dest->options);
            if (const std::optional<QPageSize> size = name ? sheetNamed(name) : std::nullopt)
                return size;
        }
        cups_dinfo_t *info = cupsCopyDestInfo(CUPS_HTTP_DEFAULT, m_dest);
        // cupsGetDestMediaDefault() gives the sheet of the country.
        ipp_attribute_t *media = cupsFindDestDefault(CUPS_HTTP_DEFAULT, m_dest, info, "media");
        const char *name = media ? ippGetString(media, 0, nullptr) : nullptr;
        const std::optional<QPageSize> size = name ? sheetNamed(name) : std::nullopt;
        cupsFreeDestInfo(info);
        return size;
    }

private:
    bool send(QIODevice &pdf, int job, const QByteArray &title) const
    {
        constexpr qint64 blockSize = 65536;
        if (cupsStartDocument(CUPS_HTTP_DEFAULT, m_dest->name, job, title, CUPS_FORMAT_PDF, 1)
            != HTTP_STATUS_CONTINUE)
            return false;
        for (QByteArray block = pdf.read(blockSize); !block.isEmpty(); block = pdf.read(blockSize))
            if (cupsWriteRequestData(CUPS_HTTP_DEFAULT, block.constData(), static_cast<size_t>(block.size()))
                != HTTP_STATUS_CONTINUE)
                return false;
        return cupsFinishDocument(CUPS_HTTP_DEFAULT, m_dest->name) <= IPP_STATUS_OK_EVENTS_COMPLETE;
    }

    // By the name of any of the standards: "A4", "iso_a4_210x297mm".
    static std::optional<QPageSize> sheetNamed(const char *name)
    {
        constexpr double hundredth = 0.01; // of a millimetre
        const pwg_media_t *media = pwgMediaForPWG(name);
        if (!media)
            media = pwgMediaForPPD(name);
        if (!media)
            return std::nullopt;
        return QPageSize(QSizeF(media->width * hundredth, media->length * hundredth), QPageSize::Millimeter,
                         QString(), QPageSize::FuzzyMatch);
    }

    cups_dest_t *m_dest;
};

[[noreturn]] void refuseToPrint()
{
    throw RuleError(
        PrintingTexts::tr("The report was not printed: %1").arg(QString::fromUtf8(cupsLastErrorString())));
}

} // namespace

QString printerNamed(const QString &printer)
{
    const Destination destination(printer);
    if (destination.exists())
        return destination.name();
    if (printer.isEmpty())
        throw RuleError(noPrinterText());
    refuseToPrint();
}

void sendToPrinter(QIODevice &pdf, const QString &printer, const QString &title, const QPageSize &sheet)
{
    Destination destination(printer);
    if (!destination.exists())
        refuseToPrint();
    // Otherwise what is larger than the printer's usual sheet is cut off.
    destination.setOption("media", sheet.key().toUtf8());
    pdf.seek(0);
    if (!destination.print(pdf, title.toUtf8()))
        refuseToPrint();
}

std::optional<QPageSize> sheetOf(const QString &printer)
{
    const Destination destination(printer);
    return destination.exists() ? destination.sheet() : std::nullopt;
}

NoPrintSystem::NoPrintSystem() { cupsSetServer("/dev/null"); } // which is no socket

NoPrintSystem::~NoPrintSystem() { cupsSetServer(nullptr); } // back to what the user's settings say

// Qt ends a job with one call of CUPS, whose outcome the library keeps for each thread.
QString jobRefusal()
{
    return cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE ? QString() : QString::fromUtf8(cupsLastErrorString());
}

} // namespace Tallymere::Printing
