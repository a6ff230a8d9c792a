#pragma once

#include <exception>
#include <QCoreApplication>
#include <QString>

namespace Engine {

// The context in which the engine's texts are found: Texts::tr("...").
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Engine)
};

// Codes of EngineError. 9729 is relied upon by name in the screens' "already exists" messages.
enum class ErrorCode {
    General = 10000, // anything without a code of its own; the text carries the store's words
    KeyViolation = 9729, // the row, or a number that must be unique, exists already
    BadValue = 9730, // a value does not fit its field
    RequiredField = 9732, // part of a primary key is empty
    BadExpression = 9733, // a filter expression or statement that cannot be read
    WrongState = 9734, // the call does not fit the table's state: a programming error
    NoSuchTable = 10024,
    NoSuchField = 10038,
    RecordLocked = 10241, // another user is editing the row
    TableLocked = 10242, // another user holds the whole table
    TableInUse = 10243, // an exclusive open found the table open, or an open found it held exclusively
    RecordGone = 10244, // the row was deleted by another user
    RecordChanged = 10246, // another user has changed the row while it was not locked any more
    Busy = 10245, // the store is writing for someone else and did not get free in time
    MovedAway = 10247, // the database has gone to another place and takes no more writes here
    CannotOpen = 11001, // folder, file or server that cannot be reached
    NoDatabase = 11010, // the folder or server can be reached, or the folder made, and holds none
    NotADatabase = 11002,
    Corrupt = 11003,
    DiskFull = 11004,
    ReadOnly = 11005,
    ConnectionLost = 11006,
    AccessDenied = 11007,
    AnswerLost = 11009, // the connection went while changes were committed, and nobody knows whether they were
    FileReplaced = 11008, // the open file, or its lock file, is no longer the one that its path leads to
};

// The one error of the engine layer. text() is meant for the user: it names the table, file or server and says
// what to do; driverText() holds the store's own words for the trace.
class EngineError : public std::exception
{
public:
    EngineError(ErrorCode code, QString text, QString driverText = {})
        : m_code(code)
        , m_text(std::move(text))
        , m_driverText(std::move(driverText))
        , m_what(m_text.toUtf8())
    {
    }

    ErrorCode code() const { return m_code; }
    // Whether the store itself is gone, so that nothing else will work either.
    bool isStoreLost() const { return isConnectionLost() || m_code == ErrorCode::FileReplaced; }
    bool isConnectionLost() const { return m_code == ErrorCode::ConnectionLost || m_code == ErrorCode::AnswerLost; }
    // Whether the store has failed, and not a lock, a row or a value.
    bool isOfTheStore() const
    {
        return m_code == ErrorCode::General || m_code == ErrorCode::NoSuchTable || m_code >= ErrorCode::CannotOpen;
    }
    // Whether somebody else's lock was in the way, so that it may go well in a moment.
    bool isHeldByOthers() const
    {
        return m_code == ErrorCode::RecordLocked || m_code == ErrorCode::TableLocked
            || m_code == ErrorCode::TableInUse || m_code == ErrorCode::Busy;
    }
    const QString &text() const { return m_text; }
    const QString &driverText() const { return m_driverText; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    ErrorCode m_code;
    QString m_text;
    QString m_driverText;
    QByteArray m_what;
};

[[noreturn]] inline void raise(ErrorCode code, const QString &text, const QString &driverText = {})
{
    throw EngineError(code, text, driverText);
}

} // namespace Engine
