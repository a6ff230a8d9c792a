#pragma once

#include <exception>
#include <functional>
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

// A rule asks about what has been entered before it is taken: it may well be a slip. After accept() the same entry goes
// through. The column, if any, is where the cursor goes for another one.
class RuleQuestion : public std::exception
{
public:
    RuleQuestion(QString question, QString column, std::function<void()> accept)
        : m_question(std::move(question))
        , m_column(std::move(column))
        , m_accept(std::move(accept))
    {
    }

    const QString &question() const { return m_question; }
    const QString &column() const { return m_column; }
    void accept() const { m_accept(); }
    const char *what() const noexcept override { return "asked of the user"; }

private:
    QString m_question;
    QString m_column;
    std::function<void()> m_accept;
};

} // namespace Tallymere
