#include "base/csvwriter.h"

#include "base/savedfile.h"
#include "base/texts.h"

#include <QIODevice>

namespace Tallymere {

namespace {
constexpr qsizetype blockSize = qsizetype(64) * 1024;
} // namespace

CsvWriter::CsvWriter(QIODevice &device)
    : m_device(device)
{
    m_block.reserve(blockSize + 4096);
}

CsvWriter::~CsvWriter() = default;

void CsvWriter::field(const QString &text)
{
    if (m_fieldsInRecord++ > 0)
        m_block += ',';
    QByteArray bytes = text.toUtf8();
    if (bytes.contains('"') || bytes.contains(',') || bytes.contains('\n') || bytes.contains('\r')) {
        bytes.replace("\"", "\"\"");
        m_block += '"' + bytes + '"';
        return;
    }
    m_block += bytes;
}

void CsvWriter::endRecord()
{
    // A record of one empty field would be an empty line, which readers pass over.
    if (m_fieldsInRecord == 1 && m_block.size() == m_recordStart)
        m_block += "\"\"";
    m_block += "\r\n";
    m_fieldsInRecord = 0;
    if (m_block.size() >= blockSize)
        flush();
    m_recordStart = m_block.size();
}

void CsvWriter::flush()
{
    if (m_device.write(m_block) != m_block.size())
        throw RuleError(BaseTexts::tr("The output could not be written: %1").arg(reasonOfShortWrite(m_device)));
    m_block.clear();
    m_recordStart = 0;
}

} // namespace Tallymere
