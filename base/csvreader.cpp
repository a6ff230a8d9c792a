#include "base/csvreader.h"

#include "base/texts.h"
#include "engine/values/storedtext.h"
#include "engine/values/textsize.h"

#include <algorithm>
#include <array>
#include <map>
#include <QIODevice>
#include <utility>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
// The longest text that a field takes, each character in four bytes, with room for quotes and for what stands beside it.
constexpr qint64 longestLine = 16 * Engine::longestText;
} // namespace

CsvReader::CsvReader(QIODevice &device, char separator)
    : m_device(device)
    , m_separator(separator)
{
}

char CsvReader::separatorOf(QIODevice &device, int fromLine, int mostLines)
{
    constexpr QByteArrayView separators = ",;\t";
    constexpr qint64 lookedAt = 65'536;
    std::array<int, separators.size()> counts = {}; // on a line
    std::array<std::map<int, int>, separators.size()> lines; // with so many of them
    int line = 1;
    int seen = 0;
    bool quoted = false;
    bool isBlank = true;
    for (const char character : device.peek(lookedAt) + '\n') {
        if (character == '"')
            quoted = !quoted;
        isBlank = isBlank && (character == '\r' || character == '\n');
        const qsizetype found = separators.indexOf(character);
        if (found >= 0 && !quoted && line >= fromLine)
            ++counts.at(static_cast<size_t>(found));
        if (character != '\n')
            continue;
        seen += line >= fromLine && !isBlank && !quoted ? 1 : 0;
        ++line;
        isBlank = true;
        for (size_t i = 0; i < counts.size() && !quoted; ++i) {
            if (const int count = std::exchange(counts.at(i), 0); count > 0)
                ++lines.at(i)[count];
        }
        if (seen >= mostLines)
            break;
    }
    const auto evenness = [](const std::map<int, int> &found) {
        int most = 0;
        for (const auto &[count, times] : found)
            most = std::max(most, times);
        return most;
    };
    return separators.at(std::ranges::max_element(lines, {}, evenness) - lines.begin());
}

bool CsvReader::next()
{
    m_fields.clear();
    while (readLine()) {
        if (m_text.isEmpty())
            continue;
        m_recordLine = m_line;
        readRecord();
        return true;
    }
    return false;
}

// A line as the file has it. UTF-8 never hides a line end inside a character, so each line can be judged alone.
bool CsvReader::readLine()
{
    m_text.clear();
    std::array<char, 8192> piece;
    for (qint64 got = 0; !m_text.endsWith('\n') && (got = m_device.readLine(piece.data(), piece.size())) > 0;) {
        m_text.append(piece.data(), got);
        requireShort(m_text, m_line + 1);
    }
    if (m_text.isEmpty()) {
        if (!m_device.atEnd())
            throw ReadFault(m_line + 1, m_device.errorString());
        return false;
    }
    ++m_line;
    m_position = 0;
    m_lineEnded = m_text.endsWith('\n');
    if (m_lineEnded)
        m_text.chop(1);
    if (m_text.endsWith('\r'))
        m_text.chop(1);
    if (m_line == 1 && m_text.startsWith("\xEF\xBB\xBF"))
        m_text.remove(0, 3);
    if (!m_text.isValidUtf8())
        throw ReadFault(m_line, BaseTexts::tr("The text is not UTF-8. Save the file in UTF-8 and try again."));
    if (m_text.contains('\0'))
        throw ReadFault(m_line, BaseTexts::tr("There is a zero byte in the text. This is no CSV file in UTF-8."));
    return true;
}

void CsvReader::requireShort(const QByteArray &text, int line)
{
    if (text.size() >= longestLine)
        throw ReadFault(line, BaseTexts::tr("There is a text here that is larger than any field takes."));
}

void CsvReader::readRecord()
{
    for (;;) {
        if (m_position < m_text.size() && m_text[m_position] == '"')
            readQuotedField();
        else
            readPlainField();
        if (m_position >= m_text.size())
            return;
        ++m_position; // the separator
    }
}

void CsvReader::readPlainField()
{
    qsizetype end = m_text.indexOf(m_separator, m_position);
    if (end < 0)
        end = m_text.size();
    const QByteArray field = m_text.mid(m_position, end - m_position);
    if (field.contains('"'))
        throw ReadFault(m_line, BaseTexts::tr("There is a quote inside a field that does not begin with one."));
    appendField(field);
    m_position = end;
}

void CsvReader::readQuotedField()
{
    const int opened = m_line;
    QByteArray field;
    ++m_position;
    for (;;) {
        const qsizetype quote = m_text.indexOf('"', m_position);
        if (quote < 0) {
            field += m_text.mid(m_position);
            field += '\n';
            requireShort(field, opened);
            if (!m_lineEnded || !readLine())
                throw ReadFault(opened, BaseTexts::tr("The quote that opens on this line never closes."));
            continue;
        }
        field += m_text.mid(m_position, quote - m_position);
        m_position = quote + 1;
        if (m_position >= m_text.size() || m_text[m_position] == m_separator)
            break;
        if (m_text[m_position] != '"')
            throw ReadFault(m_line, BaseTexts::tr("There is text after a closing quote."));
        field += '"';
        ++m_position;
    }
    appendField(field);
}

void CsvReader::appendField(const QByteArray &bytes) { m_fields.append(Engine::textFromUtf8(bytes)); }

} // namespace Tallymere
