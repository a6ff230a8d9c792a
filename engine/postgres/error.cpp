#include "engine/postgres/error.h"

#include "engine/store/writestop.h"

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

struct Mapping
{
    const char *sqlState; // whole codes first, then the two characters of a class
    ErrorCode code;
    const char *text; // %1 the server and database, %2 what the server says, %3 who is in the way
};

const char *const keyText = QT_TRANSLATE_NOOP("Engine", "The record exists already (%2).");
const char *const valueText = QT_TRANSLATE_NOOP("Engine", "A value does not fit its field (%2).");
const char *const brokenText =
    QT_TRANSLATE_NOOP("Engine", "The %1 is damaged. Have the table repaired, or restore the last backup. (%2)");
const char *const busyText =
    QT_TRANSLATE_NOOP("Engine", "The %1 is being written by another user%3. Try again in a moment.");
const char *const accessText =
    QT_TRANSLATE_NOOP("Engine", "The %1 refuses access: %2. Check the account and its rights.");
const char *const unreachableText = QT_TRANSLATE_NOOP("Engine", "The %1 cannot be opened: %2.");

const Mapping mappings[] = {
    {"23505", ErrorCode::KeyViolation, keyText},
    {"23502", ErrorCode::RequiredField, QT_TRANSLATE_NOOP("Engine", "A key field is empty (%2).")},
    {"23", ErrorCode::BadValue, QT_TRANSLATE_NOOP("Engine", "A value is not allowed (%2).")},
    {"22", ErrorCode::BadValue, valueText},
    {"42P01", ErrorCode::NoSuchTable, QT_TRANSLATE_NOOP("Engine", "There is no such table (%2).")},
    {"42703", ErrorCode::NoSuchField, QT_TRANSLATE_NOOP("Engine", "There is no such field (%2).")},
    {"42501", ErrorCode::AccessDenied, accessText},
    {"28", ErrorCode::AccessDenied, accessText},
    {"3D000", ErrorCode::NoDatabase,
     QT_TRANSLATE_NOOP("Engine", "There is no %1. Check the settings, or make a new company.")},
    {"55P03", ErrorCode::Busy, busyText},
    {"40", ErrorCode::Busy, busyText},
    {"26000", ErrorCode::CannotOpen,
     QT_TRANSLATE_NOOP("Engine",
                       "The %1 has given the session to somebody else (%2). If a pooler stands between, have "
                       "it keep sessions (pgbouncer: pool_mode = session).")},
    {"25006", ErrorCode::ReadOnly, QT_TRANSLATE_NOOP("Engine", "The %1 can only be read at the moment (%2).")},
    {"53100", ErrorCode::DiskFull,
     QT_TRANSLATE_NOOP("Engine", "The disk of the %1 is full. The changes were undone. Make room and try again.")},
    {"53", ErrorCode::CannotOpen,
     QT_TRANSLATE_NOOP("Engine", "The %1 has no room for more users or locks: %2. Try again later.")},
    {"57P03", ErrorCode::CannotOpen, unreachableText},
    {"XX001", ErrorCode::Corrupt, brokenText},
    {"XX002", ErrorCode::Corrupt, brokenText},
};

const Mapping *mappingOf(const QByteArray &sqlState)
{
    for (const Mapping &mapping : mappings) {
        if (sqlState.startsWith(mapping.sqlState))
            return &mapping;
    }
    return nullptr;
}

} // namespace

EngineError postgresError(const QByteArray &sqlState, const QString &words, const QString &detail,
                          const QString &location, const QString &holder)
{
    const QString driverText =
        u"PostgreSQL %1: %2 %3"_s.arg(QString::fromLatin1(sqlState), words, detail).trimmed();
    if (sqlState.startsWith("57P01") || sqlState.startsWith("57P02"))
        return connectionLost(location, driverText);
    if (const std::optional<QString> place = WriteStop::placeIn(words))
        return WriteStop::error(*place, driverText);
    const Mapping *mapping = mappingOf(sqlState);
    if (!mapping)
        return EngineError(ErrorCode::General, Texts::tr("The %1 reports: %2").arg(location, words), driverText);
    QString text = Texts::tr(mapping->text);
    text.replace("%1"_L1, location).replace("%3"_L1, holder).replace("%2"_L1, detail.isEmpty() ? words : detail);
    return EngineError(mapping->code, text, driverText);
}

// A pooler passes the server's words on, but not its code.
bool isMissingDatabase(const EngineError &error)
{
    const QString &words = error.driverText();
    return error.code() == ErrorCode::NoDatabase
        || words.startsWith("PostgreSQL 55000"_L1) // it is being dropped, or takes nobody in
        || (words.startsWith("PostgreSQL 08P01"_L1) && words.contains("does not exist"_L1));
}

bool isExistingDatabase(const EngineError &error)
{
    return error.driverText().startsWith("PostgreSQL 42P04"_L1) || error.code() == ErrorCode::KeyViolation;
}

EngineError connectionLost(const QString &location, const QString &words)
{
    return EngineError(ErrorCode::ConnectionLost,
                       Texts::tr("The connection to the %1 was lost. Nothing that was saved is lost; "
                                 "check the network and repeat the last step.")
                           .arg(location),
                       words);
}

EngineError handedOnSessions(const QString &location)
{
    return EngineError(
        ErrorCode::CannotOpen,
        Texts::tr("Between this program and the %1 stands a pooler that gives every transaction another "
                  "session. Locks would keep nobody out. Have it keep sessions for this database "
                  "(pgbouncer: pool_mode = session).")
            .arg(location));
}

EngineError answerLost(const QString &location, const QString &words)
{
    return EngineError(
        ErrorCode::AnswerLost,
        Texts::tr("The connection to the %1 was lost while changes were being saved, and it could not be "
                  "found out whether they were. Look whether they are there before you repeat them.")
            .arg(location),
        words);
}

} // namespace Engine
