#pragma once

#include <exception>
#include <QByteArray>
#include <QString>

namespace Tallymere {

// What ends the reading of a file, at a line or a row of it: wrong encoding, a quote that never closes, a damaged sheet. Nothing
// can be read after it.
class ReadFault : public std::exception
{
public:
    ReadFault(int line, QString message)
        : m_line(line)
        , m_message(std::move(message))
        , m_what(m_message.toUtf8())
    {
    }

    int line() const { return m_line; }
    const QString &message() const { return m_message; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    int m_line;
    QString m_message;
    QByteArray m_what;
};

} // namespace Tallymere
