#include "import/partreader.h"

#include "base/prompts.h"
#include "import/importrows.h"
#include "import/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int deepest = 100; // far more than spreadsheets nest their elements
}

PartReader::PartReader(ZipArchive &archive, const QString &name)
    : m_part(archive.open(name))
    , m_xml(m_part.get())
{
}

void PartReader::fail(const QString &message) const { throw ReadFault(m_row, message); }

void PartReader::beginRow(int row)
{
    m_row = row;
    m_characters = 0;
}

// A text may come in any number of small pieces, or be said to be repeated.
void PartReader::count(qsizetype characters)
{
    m_characters += characters;
    if (m_characters > ZipPart::longestPiece)
        fail(ZipPart::tooLong());
}

bool PartReader::next()
{
    m_part->beginPiece();
    m_xml.readNext();
    if (!m_part->fault().isEmpty())
        fail(m_part->fault());
    // A document type can only serve to bring in what stands elsewhere, or to make little text long.
    if (m_xml.isDTD())
        fail(ImportTexts::tr("The file is no proper spreadsheet: it declares a document type."));
    if (m_xml.hasError())
        fail(ImportTexts::tr("The file is damaged: %1").arg(m_xml.errorString()));
    if (m_xml.isStartElement() && ++m_depth > deepest)
        fail(ImportTexts::tr("The file is no proper spreadsheet: its elements are nested too deep."));
    if (m_xml.isEndElement())
        --m_depth;
    return !m_xml.atEnd();
}

QStringView PartReader::attribute(QLatin1StringView name) const
{
    for (const QXmlStreamAttribute &attribute : m_xml.attributes()) {
        if (attribute.name() == name)
            return attribute.value();
    }
    return {};
}

bool PartReader::hasAttribute(QLatin1StringView name) const
{
    const QXmlStreamAttributes all = m_xml.attributes();
    return std::any_of(all.begin(), all.end(), [&](const auto &attribute) { return attribute.name() == name; });
}

int PartReader::number(QLatin1StringView name, int missing) const
{
    bool ok = false;
    const int count = attribute(name).toInt(&ok);
    return ok && count > 0 ? count : missing;
}

bool PartReader::says(QLatin1StringView name, QStringView value) const
{
    const QXmlStreamAttributes all = m_xml.attributes();
    return std::any_of(all.begin(), all.end(), [&](const auto &attribute) {
        return attribute.name() == name && attribute.value() == value;
    });
}

void PartReader::skip(Progress *progress)
{
    for (int depth = 1; depth > 0 && next();) {
        if (isStart())
            ++depth;
        else if (isEnd())
            --depth;
        if (progress && isStart())
            progress->step();
    }
}

QString PartReader::textUpTo(QStringView element)
{
    QString all;
    while (next() && !isEnd(element)) {
        if (!isText())
            continue;
        count(text().size());
        all += text();
    }
    return all;
}

} // namespace Tallymere
