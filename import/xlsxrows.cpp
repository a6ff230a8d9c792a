#include "import/xlsxrows.h"

#include "import/texts.h"

#include <cmath>
#include <QDate>
#include <QHash>
#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr qsizetype mostShared = 100'000'000; // characters of all shared texts
const QString rootFolder = u"xl/"_s;

struct Link
{
    QString type; // its last word: "worksheet"
    QString target; // within the archive
};

// What the parts of a workbook are called, by the names that it gives them itself. What lies outside the file is left.
QHash<QString, Link> linksOf(ZipArchive &archive, const QString &name, const QString &folder)
{
    QHash<QString, Link> links;
    if (!archive.has(name))
        return links;
    PartReader part(archive, name);
    while (part.next()) {
        if (!part.isStart(u"Relationship") || part.attribute("TargetMode"_L1) == u"External")
            continue;
        const QString target = part.attribute("Target"_L1).toString();
        links.insert(part.attribute("Id"_L1).toString(),
                     {part.attribute("Type"_L1).toString().section(u'/', -1),
                      target.startsWith(u'/') ? target.mid(1) : folder + target});
    }
    return links;
}

QString partOf(const QHash<QString, Link> &links, const QString &type, const QString &usual)
{
    for (const Link &link : links) {
        if (link.type == type)
            return link.target;
    }
    return usual;
}

// "_x000D_" stands for a character that XML cannot hold.
QString unescaped(const QString &text)
{
    if (!text.contains("_x"_L1))
        return text;
    static const QRegularExpression escape(u"_x([0-9A-Fa-f]{4})_"_s);
    QString plain;
    qsizetype done = 0;
    for (auto matches = escape.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        plain += QStringView(text).mid(done, match.capturedStart() - done);
        plain += QChar(match.capturedView(1).toUShort(nullptr, 16));
        done = match.capturedEnd();
    }
    plain += QStringView(text).mid(done);
    return plain;
}

// The text of a string item: of all its runs, without how it is pronounced.
QString itemText(PartReader &part, QStringView element)
{
    QString text;
    while (part.next() && !part.isEnd(element)) {
        if (part.isStart(u"rPh"))
            part.skip();
        else if (part.isStart(u"t"))
            text += part.textUpTo(u"t");
    }
    return unescaped(text);
}

bool isDateNumber(int format)
{
    return (format >= 14 && format <= 17) || format == 22 || (format >= 27 && format <= 36)
        || (format >= 50 && format <= 58);
}

// Whether a number format shows a day: years or days are told, or months without hours and seconds.
bool isDateCode(QString code)
{
    static const QRegularExpression noLetters(u"\"[^\"]*\"|\\\\.|\\[[^\\]]*\\]|_.|\\*."_s);
    code = code.section(u';', 0, 0).remove(noLetters).toLower();
    if (code.contains("general"_L1))
        return false;
    if (code.contains(u'y') || code.contains(u'd'))
        return true;
    return code.contains(u'm') && !code.contains(u'h') && !code.contains(u's');
}

// The column of "AB12", from 0; -1 where there is none.
int columnOf(QStringView reference)
{
    int column = 0;
    for (const QChar letter : reference) {
        if (letter < u'A' || letter > u'Z')
            break;
        column = std::min(column * 26 + (letter.unicode() - u'A' + 1), 1'000'000);
    }
    return column - 1;
}

} // namespace

bool XlsxRows::isXlsx(const ZipArchive &archive) { return archive.has(u"[Content_Types].xml"_s); }

XlsxRows::XlsxRows(std::unique_ptr<ZipArchive> archive, const QString &sheet, int headRow)
    : SheetRows(std::move(archive), headRow)
{
    const QString part = sheetPart(sheet);
    readTexts();
    readStyles();
    m_sheetPart = std::make_unique<PartReader>(this->archive(), part);
}

QString XlsxRows::sheetPart(const QString &wanted)
{
    const QString workbook =
        partOf(linksOf(archive(), u"_rels/.rels"_s, {}), u"officeDocument"_s, u"xl/workbook.xml"_s);
    if (!archive().has(workbook))
        throw ReadFault(1, ImportTexts::tr("The file is neither a spreadsheet (XLSX, ODS) nor CSV."));
    const QHash<QString, Link> links = linksOf(archive(), u"xl/_rels/workbook.xml.rels"_s, rootFolder);
    m_textsPart = partOf(links, u"sharedStrings"_s, rootFolder + "sharedStrings.xml"_L1);
    m_stylesPart = partOf(links, u"styles"_s, rootFolder + "styles.xml"_L1);
    QStringList parts;
    PartReader part(archive(), workbook);
    while (part.next()) {
        if (part.isStart(u"workbookPr")) {
            const QStringView from1904 = part.attribute("date1904"_L1);
            m_from1904 = from1904 == u"1" || from1904 == u"true";
        } else if (part.isStart(u"sheet")) {
            const Link link = links.value(part.attribute("id"_L1).toString());
            if (link.type != "worksheet"_L1) // a chart
                continue;
            m_names.append(part.attribute("name"_L1).toString());
            parts.append(link.target);
        }
    }
    return parts.at(choose(m_names, wanted));
}

void XlsxRows::readTexts()
{
    if (!archive().has(m_textsPart))
        return;
    PartReader part(archive(), m_textsPart);
    qsizetype size = 0;
    while (part.next()) {
        if (!part.isStart(u"si"))
            continue;
        part.beginRow(1);
        m_texts.push_back(itemText(part, u"si"));
        size += m_texts.back().size() + 8;
        if (size > mostShared)
            throw ReadFault(1,
                            ImportTexts::tr("The texts of the file are longer than %1 million characters.")
                                .arg(mostShared / 1'000'000));
    }
}

void XlsxRows::readStyles()
{
    if (!archive().has(m_stylesPart))
        return;
    PartReader part(archive(), m_stylesPart);
    QHash<int, bool> ownFormats;
    bool inCells = false;
    while (part.next()) {
        if (part.isStart(u"numFmt"))
            ownFormats.insert(part.attribute("numFmtId"_L1).toInt(),
                              isDateCode(part.attribute("formatCode"_L1).toString()));
        else if (part.name() == u"cellXfs")
            inCells = part.isStart();
        else if (inCells && part.isStart(u"xf")) {
            const int format = part.attribute("numFmtId"_L1).toInt();
            m_showsDate.push_back(ownFormats.value(format, isDateNumber(format)));
        }
    }
}

bool XlsxRows::readRow()
{
    PartReader &part = *m_sheetPart;
    while (part.next()) {
        if (part.isEnd(u"sheetData"))
            return false;
        if (part.isStart(u"row")) {
            m_row = part.number("r"_L1, m_row + 1);
            part.beginRow(m_row);
            m_column = -1;
            beginRow(m_row);
        } else if (part.isStart(u"c")) {
            readCell();
        } else if (part.isEnd(u"row")) {
            return true;
        }
    }
    return false;
}

void XlsxRows::readCell()
{
    PartReader &part = *m_sheetPart;
    Cell cell;
    cell.column = columnOf(part.attribute("r"_L1));
    if (cell.column < 0)
        cell.column = m_column + 1;
    m_column = cell.column;
    cell.type = part.attribute("t"_L1).toString();
    cell.style = part.attribute("s"_L1).toULong();
    while (part.next() && !part.isEnd(u"c")) {
        if (part.isStart(u"f")) {
            cell.hasFormula = true;
            part.skip();
        } else if (part.isStart(u"v")) {
            cell.value = part.textUpTo(u"v");
        } else if (part.isStart(u"is")) {
            cell.value = itemText(part, u"is");
        }
    }
    take(cell);
}

void XlsxRows::take(const Cell &cell)
{
    if (cell.type == "e"_L1)
        return setFault(
            cell.column,
            ImportTexts::tr("The cell %1 shows an error: %2").arg(u"%1"_s, cell.value.value_or(QString())));
    if (cell.hasFormula && (!cell.value || (cell.value->isEmpty() && cell.type != "str"_L1)))
        return setFault(
            cell.column,
            ImportTexts::tr(
                "The formula in %1 has no stored result. Open the file in a spreadsheet program and save it."));
    if (cell.value)
        setCell(cell.column, textOf(cell));
}

QString XlsxRows::textOf(const Cell &cell) const
{
    if (cell.type == "s"_L1) {
        const size_t index = cell.value->toULong();
        if (index >= m_texts.size())
            throw ReadFault(line(), ImportTexts::tr("The file is damaged: a text is missing."));
        return m_texts[index];
    }
    if (cell.type == "b"_L1)
        return *cell.value == "1"_L1 ? u"true"_s : u"false"_s;
    if (cell.type == "d"_L1) { // as ISO 8601 has it
        const QDateTime time = QDateTime::fromString(*cell.value, Qt::ISODate);
        return time.isValid() ? dateAsText(time.date(), time.time()) : *cell.value;
    }
    if (cell.type == "str"_L1)
        return unescaped(*cell.value);
    return cell.type == "inlineStr"_L1 ? *cell.value : numberOf(cell);
}

QString XlsxRows::numberOf(const Cell &cell) const
{
    bool ok = false;
    const double number = QLocale::c().toDouble(*cell.value, &ok);
    if (!ok)
        return *cell.value; // is refused as what it is
    const bool isDate = cell.style < m_showsDate.size() && m_showsDate[cell.style];
    return isDate ? dateOf(number) : numberAsText(number);
}

// Counted from 1900 there is a day 60 that has never been, the 29th of February.
QString XlsxRows::dateOf(double serial) const
{
    if (!(serial >= 0 && serial < 3'000'000))
        return numberAsText(serial);
    const double milliseconds = std::round(serial * 86'400'000);
    const auto day = static_cast<qint64>(milliseconds / 86'400'000);
    const QTime time = QTime::fromMSecsSinceStartOfDay(static_cast<int>(std::fmod(milliseconds, 86'400'000)));
    if (m_from1904)
        return dateAsText(QDate(1904, 1, 1).addDays(day), time);
    if (day == 60)
        return u"1900-02-29"_s;
    return dateAsText(QDate(1899, 12, 31).addDays(day < 60 ? day : day - 1), time);
}

} // namespace Tallymere
