#include "import/ziparchive.h"

#include "import/importrows.h"
#include "import/texts.h"

#include <zip.h>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString damaged(const char *reason)
{
    return ImportTexts::tr("The file is damaged and could not be unpacked: %1").arg(QString::fromUtf8(reason));
}

} // namespace

ZipPart::ZipPart(zip_file *file)
    : m_file(file)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

ZipPart::~ZipPart() { zip_fclose(m_file); }

qint64 ZipPart::readData(char *data, qint64 size)
{
    if (!m_fault.isEmpty())
        return -1;
    const qint64 count = zip_fread(m_file, data, static_cast<zip_uint64_t>(size));
    if (count < 0) {
        m_fault = damaged(zip_error_strerror(zip_file_get_error(m_file)));
        return -1;
    }
    m_unpacked += count;
    m_piece += count;
    if (m_unpacked > mostUnpacked)
        m_fault =
            ImportTexts::tr("The file holds more than %1 MB when it is unpacked, and is not read any further.")
                .arg(mostUnpacked / (1024 * 1024));
    else if (m_piece > longestPiece)
        m_fault = tooLong();
    else if (isCrowded(data, count))
        m_fault = ImportTexts::tr("The file is no proper spreadsheet: an element has too many attributes.");
    if (!m_fault.isEmpty())
        return -1;
    return count == 0 ? -1 : count;
}

QString ZipPart::tooLong()
{
    return ImportTexts::tr("The file holds a text that is longer than any cell may hold.");
}

// Many attributes of one element take the reader of XML a time that grows with their square.
bool ZipPart::isCrowded(const char *data, qint64 size)
{
    constexpr int most = 1000;
    for (const char *at = data; at < data + size; ++at) {
        if (*at == '<') {
            m_inTag = true;
            m_assignments = 0;
        } else if (*at == '>') {
            m_inTag = false;
        } else if (*at == '=' && m_inTag && ++m_assignments > most) {
            return true;
        }
    }
    return false;
}

ZipArchive::ZipArchive(QByteArray packed)
    : m_packed(std::move(packed))
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t *source =
        zip_source_buffer_create(m_packed.constData(), static_cast<zip_uint64_t>(m_packed.size()), 0, &error);
    if (source)
        m_archive = zip_open_from_source(source, ZIP_RDONLY, &error);
    if (source && !m_archive)
        zip_source_free(source);
    const QString reason = m_archive ? QString() : damaged(zip_error_strerror(&error));
    zip_error_fini(&error);
    if (!m_archive)
        throw ReadFault(1, reason);
}

ZipArchive::~ZipArchive() { zip_discard(m_archive); }

bool ZipArchive::has(const QString &name) const
{
    return zip_name_locate(m_archive, name.toUtf8().constData(), ZIP_FL_NOCASE) >= 0;
}

std::unique_ptr<ZipPart> ZipArchive::open(const QString &name)
{
    zip_file *file = zip_fopen(m_archive, name.toUtf8().constData(), ZIP_FL_NOCASE);
    if (!file)
        throw ReadFault(1, damaged(zip_strerror(m_archive)));
    return std::make_unique<ZipPart>(file);
}

QByteArray ZipArchive::content(const QString &name, qint64 most)
{
    if (!has(name))
        return {};
    const std::unique_ptr<ZipPart> part = open(name);
    QByteArray content = part->read(most);
    if (!part->fault().isEmpty())
        throw ReadFault(1, part->fault());
    return content;
}

} // namespace Tallymere
