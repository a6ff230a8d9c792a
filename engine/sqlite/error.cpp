#include "engine/sqlite/error.h"

#include "engine/store/writestop.h"

#include <cerrno>
#include <QFileInfo>
#include <sqlite3.h>

namespace Engine {

namespace {

struct Mapping
{
    int resultCode; // extended codes first, then the primary codes that stand for all others of their kind
    ErrorCode code;
    const char *text; // %1 the file, %2 what SQLite says
};

const char *const keyText = QT_TRANSLATE_NOOP("Engine", "The record exists already (%2).");
const char *const brokenText =
    QT_TRANSLATE_NOOP("Engine", "%1 is damaged. Have the table repaired, or restore the last backup.");
const char *const fullText =
    QT_TRANSLATE_NOOP("Engine", "The disk of %1 is full. The changes were undone. Make room and try again.");
const char *const readOnlyText =
    QT_TRANSLATE_NOOP("Engine", "%1 cannot be written. Check the permissions of the file and of its folder.");

const Mapping mappings[] = {
    {SQLITE_CONSTRAINT_PRIMARYKEY, ErrorCode::KeyViolation, keyText},
    {SQLITE_CONSTRAINT_UNIQUE, ErrorCode::KeyViolation, keyText},
    {SQLITE_CONSTRAINT_ROWID, ErrorCode::KeyViolation, keyText},
    {SQLITE_CONSTRAINT_NOTNULL, ErrorCode::RequiredField,
     QT_TRANSLATE_NOOP("Engine", "A key field is empty (%2).")},
    {SQLITE_CONSTRAINT, ErrorCode::BadValue, QT_TRANSLATE_NOOP("Engine", "A value is not allowed (%2).")},
    {SQLITE_MISMATCH, ErrorCode::BadValue, QT_TRANSLATE_NOOP("Engine", "A value does not fit its field (%2).")},
    {SQLITE_TOOBIG, ErrorCode::BadValue, QT_TRANSLATE_NOOP("Engine", "A value is too long (%2).")},
    {SQLITE_BUSY, ErrorCode::Busy,
     QT_TRANSLATE_NOOP("Engine", "%1 is being read or written by another user. Try again in a moment.")},
    {SQLITE_LOCKED, ErrorCode::Busy,
     QT_TRANSLATE_NOOP("Engine", "%1 is in use by this program at the moment. Try again. (%2)")},
    {SQLITE_FULL, ErrorCode::DiskFull, fullText},
    {SQLITE_IOERR_SHMSIZE, ErrorCode::DiskFull, fullText}, // no room for the index of the write-ahead log
    {SQLITE_IOERR_CORRUPTFS, ErrorCode::Corrupt, brokenText},
    {SQLITE_IOERR, ErrorCode::General,
     QT_TRANSLATE_NOOP("Engine", "%1 could not be read or written (%2). Check the disk or the network folder.")},
    {SQLITE_CORRUPT, ErrorCode::Corrupt, brokenText},
    {SQLITE_NOTADB, ErrorCode::NotADatabase,
     QT_TRANSLATE_NOOP("Engine", "%1 is not a database. Check the database folder, or restore the last backup.")},
    {SQLITE_CANTOPEN, ErrorCode::CannotOpen,
     QT_TRANSLATE_NOOP("Engine",
                       "%1 cannot be opened. Check that the folder exists and that you may write in it.")},
    {SQLITE_READONLY, ErrorCode::ReadOnly, readOnlyText},
    {SQLITE_PERM, ErrorCode::ReadOnly, readOnlyText},
    {SQLITE_AUTH, ErrorCode::AccessDenied, readOnlyText},
};

const Mapping *mappingOf(int resultCode)
{
    for (const Mapping &mapping : mappings) {
        if (mapping.resultCode == resultCode)
            return &mapping;
    }
    const int primary = resultCode & 0xff;
    return primary == resultCode ? nullptr : mappingOf(primary);
}

// A full disk reaches us as a failed write when SQLite cannot tell the two apart.
bool isWriteFailure(int resultCode, sqlite3 *db)
{
    return resultCode == SQLITE_IOERR_WRITE && db && sqlite3_system_errno(db) == ENOSPC;
}

// Beside a write-ahead log, a file that cannot be written cannot be opened either, and SQLite tells only the latter.
bool isWriteProtected(int resultCode, const QString &path)
{
    const QFileInfo file(path);
    return (resultCode & 0xff) == SQLITE_CANTOPEN && file.isFile()
        && (!file.isWritable() || !QFileInfo(file.path()).isWritable());
}

QString fileText(const QString &path)
{
    const QFileInfo file(path);
    if (path.isEmpty() || path.startsWith(u':'))
        return Texts::tr("The database in memory");
    return Texts::tr("%1 in %2").arg(file.fileName(), file.path());
}

} // namespace

EngineError sqliteError(sqlite3 *db, int resultCode, const QString &path)
{
    if (isWriteFailure(resultCode, db))
        resultCode = SQLITE_FULL;
    if (isWriteProtected(resultCode, path))
        resultCode = SQLITE_READONLY;
    const QString words = QString::fromUtf8(db ? sqlite3_errmsg(db) : sqlite3_errstr(resultCode));
    const QString driverText = QStringLiteral("SQLite %1: %2").arg(resultCode).arg(words);
    if (const std::optional<QString> place = WriteStop::placeIn(words))
        return WriteStop::error(*place, driverText);
    if (words.startsWith(QLatin1StringView("no such table: ")))
        return EngineError(ErrorCode::NoSuchTable,
                           Texts::tr("%1 has no table \"%2\".").arg(fileText(path), words.mid(15)), driverText);
    if (words.startsWith(QLatin1StringView("no such column: ")))
        return EngineError(ErrorCode::NoSuchField, Texts::tr("There is no field \"%1\".").arg(words.mid(16)),
                           driverText);
    const Mapping *mapping = mappingOf(resultCode);
    if (!mapping)
        return EngineError(ErrorCode::General, fileText(path) + QLatin1StringView(": ") + words, driverText);
    QString text = Texts::tr(mapping->text);
    text.replace(QLatin1StringView("%1"), fileText(path)).replace(QLatin1StringView("%2"), words);
    return EngineError(mapping->code, text, driverText);
}

} // namespace Engine
