#pragma once

#include <exception>
#include <QString>

namespace Tallymere {

// A rule refused what the user wanted. The message is shown in the standard error box as it stands; the column, if
// any, names the field that the screen puts the cursor on.
class RuleError : public std::exception
{
public:
    explicit RuleError(QString message, QString column = {})
        : m_message(std::move(message))
        , m_column(std::move(column))
        , m_what(m_message.toUtf8())
    {
    }

    const QString &message() const { return m_message; }
    const QString &column() const { return m_column; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    QString m_message;
    QString m_column;
    QByteArray m_what;
};

// Ends what is going on without a further message: the user has answered No or Cancel, or has seen the message
// already. The column, if any, is where the cursor goes.
class SilentAbort : public std::exception
{
public:
    explicit SilentAbort(QString column = {})
        : m_column(std::move(column))
    {
    }

    const QString &column() const { return m_column; }
    const char *what() const noexcept override { return "stopped by the user"; }

private:
    QString m_column;
};

} // namespace Tallymere
