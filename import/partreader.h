#pragma once

#include "import/ziparchive.h"

#include <QXmlStreamReader>

namespace Tallymere {

class Progress;

// Goes through a part of a spreadsheet that is XML, element by element; names are told without their namespace. Nothing
// outside the file is ever read. Throws ReadFault, for the row that has been reached.
class PartReader
{
public:
    PartReader(ZipArchive &archive, const QString &name);

    bool next(); // to what follows; false at the end
    bool isStart(QStringView name) const { return m_xml.isStartElement() && m_xml.name() == name; }
    bool isEnd(QStringView name) const { return m_xml.isEndElement() && m_xml.name() == name; }
    bool isStart() const { return m_xml.isStartElement(); }
    bool isEnd() const { return m_xml.isEndElement(); }
    bool isText() const { return m_xml.isCharacters(); }
    QStringView name() const { return m_xml.name(); }
    QStringView text() const { return m_xml.text(); }
    QStringView attribute(QLatin1StringView name) const; // of the element; empty where there is none
    bool hasAttribute(QLatin1StringView name) const;
    bool says(QLatin1StringView name, QStringView value) const; // in whatever namespace the attribute is
    int number(QLatin1StringView name, int missing) const; // a count from 1 on
    void skip(Progress *progress = nullptr); // to the end of the element, with a step for each in it
    QString textUpTo(QStringView element); // all text to the end of the element of that name

    // What follows is of the row of that number, whose texts together must not be longer than a line of CSV may be.
    void beginRow(int row);
    void count(qsizetype characters); // of a text of the row, before it is kept

private:
    [[noreturn]] void fail(const QString &message) const;

    const std::unique_ptr<ZipPart> m_part;
    QXmlStreamReader m_xml;
    int m_depth = 0;
    int m_row = 1; // that has been reached, for what is wrong
    qsizetype m_characters = 0;
};

} // namespace Tallymere
