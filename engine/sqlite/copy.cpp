#include "engine/sqlite/connection.h"
#include "engine/sqlite/error.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

// The whole file, into another one.

namespace Engine {

namespace {

struct FinishBackup
{
    void operator()(sqlite3_backup *backup) const { sqlite3_backup_finish(backup); }
};

} // namespace

QStringList SqliteConnection::tables()
{
    QStringList names;
    const StatementPtr row = prepare(
        u"SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'"_s);
    while (row->next())
        names << row->textAt(0);
    names.sort(Qt::CaseInsensitive);
    return names;
}

qint64 SqliteConnection::size()
{
    const StatementPtr row = prepare(u"SELECT page_count * page_size FROM pragma_page_count, pragma_page_size"_s);
    row->next();
    return row->intAt(0);
}

// Within a read transaction that is of one moment: SQLite begins anew when somebody writes outside of one.
bool SqliteConnection::copyTo(const QString &file, const std::function<void()> &step)
{
    sqlite3 *opened = nullptr;
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_EXCLUSIVE | SQLITE_OPEN_NOMUTEX;
    const int openCode = sqlite3_open_v2(file.toUtf8().constData(), &opened, flags, nullptr);
    const SqliteHandle target(opened);
    if (openCode != SQLITE_OK)
        throw sqliteError(target.get(), openCode, file);
    const std::unique_ptr<sqlite3_backup, FinishBackup> backup(
        sqlite3_backup_init(target.get(), "main", handle(), "main"));
    if (!backup)
        throw sqliteError(target.get(), sqlite3_errcode(target.get()), file);
    constexpr int pages = 2'000;
    int code = SQLITE_OK;
    while (code == SQLITE_OK) {
        code = sqlite3_backup_step(backup.get(), pages);
        step();
    }
    if (code != SQLITE_DONE)
        throw sqliteError(target.get(), code, file);
    return true;
}

} // namespace Engine
