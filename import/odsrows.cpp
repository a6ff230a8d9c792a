#include "import/odsrows.h"

#include "import/texts.h"

#include <QDateTime>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

const QString contentName = u"content.xml"_s;

// Blanks and line ends within a paragraph are one blank; more are written as elements.
void appendCollapsed(QString &paragraph, QStringView text)
{
    for (const QChar character : text) {
        const bool blank = character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
        if (!blank)
            paragraph += character;
        else if (!paragraph.isEmpty() && !paragraph.endsWith(u' '))
            paragraph += u' ';
    }
}

// What an element in a paragraph stands for, of those that stand for characters.
void appendElement(QString &paragraph, PartReader &part)
{
    const int blanks = part.name() == u"s" ? std::min(part.number("c"_L1, 1), 100'000) : 0;
    part.count(std::max(blanks, 1));
    if (blanks > 0)
        paragraph += QString(blanks, u' ');
    else if (part.name() == u"tab")
        paragraph += u'\t';
    else if (part.name() == u"line-break")
        paragraph += u'\n';
}

// A paragraph to its end, with what stands in its parts.
QString paragraphText(PartReader &part)
{
    QString text;
    for (int depth = 1; depth > 0 && part.next();) {
        if (part.isText()) {
            part.count(part.text().size());
            appendCollapsed(text, part.text());
        } else if (part.isEnd()) {
            --depth;
        } else if (part.isStart(u"annotation") || part.isStart(u"note")) {
            part.skip();
        } else if (part.isStart()) {
            ++depth;
            appendElement(text, part);
        }
    }
    return text;
}

bool toNextSheet(PartReader &content)
{
    while (content.next()) {
        if (content.isStart(u"tracked-changes"))
            content.skip();
        else if (content.isStart(u"table"))
            return true;
    }
    return false;
}

} // namespace

bool OdsRows::isOds(ZipArchive &archive)
{
    return archive.content(u"mimetype"_s, 100).startsWith("application/vnd.oasis.opendocument.spreadsheet");
}

OdsRows::OdsRows(std::unique_ptr<ZipArchive> archive, const QString &sheet, int headRow)
    : SheetRows(std::move(archive), headRow)
{
    requireReadable();
    m_content = std::make_unique<PartReader>(this->archive(), contentName);
    QStringList names;
    while (toNextSheet(*m_content)) {
        names.append(m_content->attribute("name"_L1).toString());
        if (sheet.isEmpty() || names.constLast() == sheet)
            break;
        m_content->skip();
    }
    choose(names, sheet);
}

void OdsRows::requireReadable()
{
    if (archive().content(u"META-INF/manifest.xml"_s, 1'000'000).contains("encryption-data"))
        throw ReadFault(1, ImportTexts::tr("The file is protected by a password. Save it without one."));
}

// The names of all of them take reading the whole content, so that is done only when they are asked for.
QStringList OdsRows::sheets(Progress *progress)
{
    QStringList names;
    PartReader part(archive(), contentName);
    while (toNextSheet(part)) {
        names.append(part.attribute("name"_L1).toString());
        part.skip(progress);
    }
    return names;
}

bool OdsRows::readRow()
{
    if (m_repeats > 0) {
        giveRow();
        return true;
    }
    while (m_content->next() && !m_content->isEnd(u"table")) {
        if (m_content->isStart(u"shapes") || m_content->isStart(u"forms")) {
            m_content->skip();
        } else if (m_content->isStart(u"table-row")) {
            m_repeats = m_content->number("number-rows-repeated"_L1, 1);
            readCells();
            if (m_cells.empty()) {
                m_row += std::min(m_repeats, mostRows); // nothing stands in them
                m_row = std::min(m_row, 2 * mostRows);
                m_repeats = 0;
                continue;
            }
            giveRow();
            return true;
        }
    }
    return false;
}

void OdsRows::giveRow()
{
    --m_repeats;
    beginRow(++m_row);
    for (const Cell &cell : m_cells) {
        if (!cell.fault.isEmpty())
            setFault(cell.column, cell.fault);
        for (int i = 0; i < cell.count && cell.fault.isEmpty(); ++i)
            setCell(cell.column + i, cell.text);
    }
}

void OdsRows::readCells()
{
    m_cells.clear();
    m_column = 0;
    m_content->beginRow(m_row + 1);
    while (m_content->next() && !m_content->isEnd(u"table-row")) {
        const bool covered = m_content->isStart(u"covered-table-cell"); // by the one that it was merged into
        if (!covered && !m_content->isStart(u"table-cell"))
            continue;
        const int count = std::min(m_content->number("number-columns-repeated"_L1, 1), mostColumns + 1);
        if (covered)
            m_content->skip();
        else
            addCell(count);
        m_column = std::min(m_column + count, 2 * mostColumns);
    }
}

void OdsRows::addCell(int count)
{
    Cell cell{.column = m_column, .count = count, .text = {}, .fault = {}};
    // Two attributes are called so: the one of an extension alone knows errors.
    const QStringView type = m_content->attribute("value-type"_L1);
    const bool isText = type.isEmpty() || type == u"string" || type == u"error";
    const bool isGiven = isText && m_content->hasAttribute("string-value"_L1);
    const QString stored = isText ? m_content->attribute("string-value"_L1).toString() : storedText();
    m_content->count(stored.size());
    const bool isError = m_content->says("value-type"_L1, u"error");
    const QString shown = shownText();
    cell.text = isText && !isGiven ? shown : stored;
    if (isError)
        cell.fault = ImportTexts::tr("The cell %1 shows an error: %2").arg(u"%1"_s, shown);
    if (!cell.text.isEmpty() || !cell.fault.isEmpty())
        m_cells.push_back(cell);
}

QString OdsRows::storedText() const
{
    const QStringView type = m_content->attribute("value-type"_L1);
    if (type == u"boolean")
        return m_content->attribute("boolean-value"_L1).toString();
    if (type == u"time")
        return m_content->attribute("time-value"_L1).toString();
    if (type == u"date") {
        const QString value = m_content->attribute("date-value"_L1).toString();
        const QDateTime time = QDateTime::fromString(value, Qt::ISODate);
        return time.isValid() ? dateAsText(time.date(), time.time()) : value;
    }
    const QString value = m_content->attribute("value"_L1).toString();
    bool ok = false;
    const double number = QLocale::c().toDouble(value, &ok);
    return ok ? numberAsText(number) : value;
}

QString OdsRows::shownText()
{
    QString text;
    bool first = true;
    while (m_content->next() && !m_content->isEnd(u"table-cell")) {
        if (m_content->isStart(u"p") || m_content->isStart(u"h")) {
            m_content->count(1);
            text += (first ? QString() : u"\n"_s) + paragraphText(*m_content);
            first = false;
        } else if (m_content->isStart()) { // a comment, a picture
            m_content->skip();
        }
    }
    return text;
}

} // namespace Tallymere
