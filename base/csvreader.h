#pragma once

#include "base/readfault.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class QIODevice;

namespace Tallymere {

// Reads comma-separated records (RFC 4180) in UTF-8, with or without byte order mark, one at a time. Lines end with
// CR LF or LF; lines without any character are passed over.
class CsvReader
{
public:
    explicit CsvReader(QIODevice &device, char separator = ','); // open for reading; not taken over

    // What separates the fields of a file that somebody's spreadsheet program has written, where that may be a semicolon or
    // a tab: what stands as often on one line as on another. So many lines are looked at in which something stands, from one
    // on. A comma where nothing tells. The device stays where it is.
    static char separatorOf(QIODevice &device, int fromLine, int mostLines);

    // The next record; false after the last one. Throws ReadFault.
    bool next();

    const QStringList &fields() const { return m_fields; }
    int line() const { return m_recordLine; } // the line on which the record begins, from 1

private:
    bool readLine();
    static void requireShort(const QByteArray &text, int line);
    void readRecord();
    void readQuotedField();
    void readPlainField();
    void appendField(const QByteArray &bytes);

    QIODevice &m_device;
    const char m_separator;
    QByteArray m_text; // the line in hand, without its end
    bool m_lineEnded = false; // it had an end
    qsizetype m_position = 0;
    int m_line = 0;
    int m_recordLine = 0;
    QStringList m_fields;
};

} // namespace Tallymere
