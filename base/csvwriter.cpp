#include "base/csvwriter.h"

#include "base/savedfile.h"
#include "base/settingsstore.h"
#include "base/texts.h"

#include <QIODevice>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr qsizetype blockSize = qsizetype(64) * 1024;

bool beginsFormula(const QString &text) { return !text.isEmpty() && u"=+-@\t\r"_s.contains(text.front()); }
} // namespace

CsvTexts csvTexts(const SettingsStore *settings)
{
    const bool defuses = settings && settings->value(Settings::savingSection, Settings::DefusesFormulas);
    return defuses ? CsvTexts::Defused : CsvTexts::AsStored;
}

CsvWriter::CsvWriter(QIODevice &device, CsvTexts texts)
    : m_device(device)
    , m_texts(texts)
{
    m_block.reserve(blockSize + 4096);
}

CsvWriter::~CsvWriter() = default;

void CsvWriter::field(const QString &text)
{
    const bool isDefused = m_texts == CsvTexts::Defused && beginsFormula(text);
    write(isDefused ? '\'' + text.toUtf8() : text.toUtf8());
}

void CsvWriter::field(const Engine::Value &value)
{
    if (std::holds_alternative<QString>(value.storage()))
        field(value.toText());
    else
        write(value.toText().toUtf8());
}

void CsvWriter::write(QByteArray bytes)
{
    if (m_fieldsInRecord++ > 0)
        m_block += ',';
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
