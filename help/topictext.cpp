#include "help/topictext.h"

#include <algorithm>
#include <QList>
#include <QStringList>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int lineWidth = 79;

// The words in lines; the first begins with the label, the others under the first word after it.
QString wrapped(const QString &text, const QString &label, int width = lineWidth)
{
    QString result = label;
    const QString margin(label.size(), u' ');
    qsizetype used = label.size();
    bool first = true;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (!first && used + 1 + word.size() > width) {
            result += u'\n' + margin;
            used = margin.size();
            first = true;
        }
        result += (first ? QString() : u" "_s) + word;
        used += word.size() + (first ? 0 : 1);
        first = false;
    }
    return result + u'\n';
}

class TopicReader
{
public:
    explicit TopicReader(const QString &page)
        : m_xml(page)
    {
    }

    QString read()
    {
        while (m_xml.readNextStartElement() && m_xml.name() != "body"_L1) {
            if (m_xml.name() != "html"_L1)
                m_xml.skipCurrentElement();
        }
        while (m_xml.readNextStartElement())
            readBlock();
        return m_text.trimmed();
    }

private:
    void readBlock()
    {
        const QStringView name = m_xml.name();
        if (name == "h1"_L1)
            addHeading(u'=');
        else if (name == "h2"_L1)
            addHeading(u'-');
        else if (name == "ol"_L1 || name == "ul"_L1)
            addList(name == "ol"_L1);
        else if (name == "table"_L1)
            addTable();
        else if (name == "pre"_L1)
            m_text += "    "_L1 + m_xml.readElementText().trimmed().replace(u'\n', u"\n    "_s) + "\n\n"_L1;
        else if (const QString text = readText(); !text.isEmpty())
            m_text += wrapped(text, {}) + u'\n';
    }

    // What stands in the element, as one line.
    QString readText()
    {
        const QString link = m_xml.attributes().value("href"_L1).toString();
        QString text;
        while (!m_xml.atEnd()) {
            m_xml.readNext();
            if (m_xml.isEndElement())
                break;
            if (m_xml.isCharacters())
                text += m_xml.text();
            else if (m_xml.isStartElement())
                text += readText();
        }
        if (link.contains(".html"_L1)) // not one within the page
            text += " ["_L1 + link.section(u'.', 0, 0) + u']';
        const bool before = text.startsWith(u' ') || text.startsWith(u'\n');
        const bool after = text.endsWith(u' ') || text.endsWith(u'\n');
        return (before ? u" "_s : QString()) + text.simplified() + (after ? u" "_s : QString());
    }

    void addHeading(QChar line)
    {
        const QString text = readText().trimmed();
        m_text += text + u'\n' + QString(text.size(), line) + "\n\n"_L1;
    }

    void addList(bool numbered)
    {
        for (int number = 1; m_xml.readNextStartElement(); ++number)
            m_text += wrapped(readText(), numbered ? u"%1. "_s.arg(number, 2) : u" -  "_s);
        m_text += u'\n';
    }

    // The first column is as wide as its widest text; where that leaves too little for the second, this one goes below.
    void addTable()
    {
        constexpr qsizetype widest = 32;
        QList<std::pair<QString, QString>> rows;
        qsizetype width = 0;
        while (m_xml.readNextStartElement()) {
            QStringList cells;
            while (m_xml.readNextStartElement())
                cells.append(readText().trimmed());
            rows.append({cells.value(0), cells.mid(1).join(u"  "_s)});
            width = std::max(width, rows.constLast().first.size());
        }
        for (const auto &[first, second] : rows) {
            if (width > widest)
                m_text += wrapped(first, {}) + wrapped(second, u"    "_s);
            else
                m_text += wrapped(second, first.leftJustified(width + 2));
        }
        m_text += u'\n';
    }

    QXmlStreamReader m_xml;
    QString m_text;
};

} // namespace

QString topicText(const QString &page) { return TopicReader(page).read(); }

} // namespace Tallymere
