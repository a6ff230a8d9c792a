#include "engine/sqlite/connection.h"

#include "engine/sqlite/error.h"
#include "engine/sqlite/locks.h"
#include "engine/sqlite/statement.h"
#include "engine/sqlite/store.h"
#include "engine/sqlite/watch.h"
#include "engine/store/database.h"
#include "engine/store/platform.h"
#include "engine/store/session.h"
#include "engine/values/error.h"

#include <chrono>
#include <limits>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QScopedValueRollback>
#include <QScopeGuard>
#include <sqlite3.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

constexpr std::chrono::milliseconds busyTime{5000};
constexpr std::chrono::milliseconds longReadTime{60'000};

QString lockFilePath(const QString &databasePath)
{
    const QFileInfo file(databasePath);
    return file.path() + u'/' + file.completeBaseName() + ".lck"_L1;
}

} // namespace

SqliteConnection::SqliteConnection() = default;

SqliteConnection::SqliteConnection(const QString &path, Missing missing, const QString &user)
    : m_path(path)
{
    requireUtf8Name(path);
    requireUtf8Name(
        QFileInfo(QFileInfo(path).path()).canonicalFilePath()); // where links lead, before a file is made there
    if (missing == Missing::Create)
        makeOwnFile(path);
    open(SQLITE_OPEN_READWRITE | (missing == Missing::Create ? SQLITE_OPEN_CREATE : 0));
    watch(user);
    configure();
    m_watch->opened();
    giveNumberAtOpening();
    m_locks->beforeLocking = [this] {
        if (!inTransaction()) // which has asked already
            requireOwnFile();
    };
}

std::unique_ptr<SqliteConnection> SqliteConnection::inMemory()
{
    std::unique_ptr<SqliteConnection> connection(new SqliteConnection);
    connection->m_path = u":memory:"_s;
    connection->open(SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MEMORY);
    connection->m_locks = std::make_unique<FileLocks>(QString(), QString());
    return connection;
}

SqliteConnection::~SqliteConnection()
{
    clearStatementCache();
    if (m_watch)
        m_watch->beforeClosing();
}

void SqliteConnection::open(int flags)
{
    sqlite3 *db = nullptr;
    const int resultCode = sqlite3_open_v2(m_path.toUtf8().constData(), &db, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    m_db.reset(db); // which SQLite makes even for what cannot be opened
    if (resultCode != SQLITE_OK)
        throw sqliteError(handle(), resultCode, m_path);
    sqlite3_extended_result_codes(handle(), 1);
    m_patience = busyTime;
    sqlite3_busy_handler(handle(), waitForOthers, this);
}

int SqliteConnection::waitForOthers(void *connection, int times)
{
    auto &self = *static_cast<SqliteConnection *>(connection);
    if (times == 0)
        self.m_waitingSince = std::chrono::steady_clock::now();
    return self.waitsOn() ? 1 : 0;
}

// Short pauses, as a long run lets others in for a moment only (GroupedWrites), and of different lengths, lest those who
// wait keep step.
bool SqliteConnection::waitsOn()
{
    if (std::chrono::steady_clock::now() - m_waitingSince >= m_patience)
        return false;
    if (m_isBeginning && m_locks)
        m_locks->wait();
    constexpr int longestPause = 8; // ms
    std::this_thread::sleep_for(std::chrono::milliseconds(QRandomGenerator::global()->bounded(1, longestPause)));
    return true;
}

void SqliteConnection::watch(const QString &user)
{
    if (sqlite3_db_readonly(handle(), "main") == 1) // SQLite opens a write-protected file for reading, unasked
        throw sqliteError(nullptr, SQLITE_READONLY, m_path);
    if (!SqliteWatch::isDatabase(handle()))
        throw sqliteError(nullptr, SQLITE_NOTADB, m_path);
    requireUtf8Name(SqliteWatch::realPath(handle())); // of a link to a file
    m_locks = std::make_unique<FileLocks>(lockFilePath(SqliteWatch::realPath(handle())), user);
    m_watch = std::make_unique<SqliteWatch>(handle(), m_path, *m_locks);
}

void SqliteConnection::configure()
{
    // Write-ahead logging needs memory shared between the writers, which network folders do not give.
    const QString journal = isLocalFileSystem(SqliteWatch::realPath(handle())) ? u"WAL"_s : u"DELETE"_s;
    execute(u"PRAGMA temp_store = MEMORY"_s);
    chooseJournal(journal);
    execute(u"PRAGMA synchronous = EXTRA"_s); // a rollback journal is gone for good once its folder has been synced
    setBulk(false);
    execute(u"PRAGMA schema_version"_s); // the first read opens the log
}

// Two programs that do it with a new file at the same moment are in each other's way, and SQLite does not wait then.
void SqliteConnection::chooseJournal(const QString &journal)
{
    const auto end = std::chrono::steady_clock::now() + busyTime;
    constexpr int longestPause = 20;
    for (;;) {
        try {
            return execute("PRAGMA journal_mode = "_L1 + journal);
        } catch (const EngineError &error) {
            if (error.code() != ErrorCode::Busy || std::chrono::steady_clock::now() > end)
                throw;
        }
        std::this_thread::sleep_for(
            std::chrono::milliseconds(QRandomGenerator::global()->bounded(1, longestPause)));
    }
}

// Indexes are written all over, and each group of a run writes many of the same pages again: what does not fit the
// cache, or is copied back after every group, costs as much as the writes themselves. And a run that somebody's reading
// keeps from writing had rather wait for a long report than fail.
void SqliteConnection::setBulk(bool bulk)
{
    m_patience = bulk && isWritingKeptOutByReading() ? longReadTime : busyTime;
    execute(bulk ? u"PRAGMA cache_size = -262144; PRAGMA wal_autocheckpoint = 64000"_s
                 : u"PRAGMA cache_size = -65536; PRAGMA wal_autocheckpoint = 4000"_s);
}

QString SqliteConnection::identity()
{
    if (number() == 0)
        giveNumber();
    constexpr int digits = 8;
    return u"%1"_s.arg(number(), digits, 16, QLatin1Char('0'));
}

quint32 SqliteConnection::number()
{
    const StatementPtr statement = prepare(u"PRAGMA application_id"_s);
    return statement->next() ? static_cast<quint32>(statement->intAt(0)) : 0;
}

void SqliteConnection::giveNumber()
{
    Transaction transaction(*this);
    if (number() == 0) // or another program was faster
        execute(u"PRAGMA application_id = %1"_s.arg(
            QRandomGenerator::global()->bounded(1, std::numeric_limits<int>::max())));
    transaction.commit();
    if (m_watch)
        m_watch->numbered(number());
}

// A database that cannot be written at the moment can be read without one.
void SqliteConnection::giveNumberAtOpening()
{
    try {
        if (number() == 0)
            giveNumber();
        m_watch->numbered(number());
    } catch (const EngineError &) {
        rollback();
    }
}

LockManager &SqliteConnection::locks() { return *m_locks; }

void SqliteConnection::requireOwnFile()
{
    if (m_watch)
        m_watch->check();
}

void SqliteConnection::execute(const QString &script)
{
    if (!inTransaction())
        requireOwnFile();
    const int resultCode = sqlite3_exec(handle(), script.toUtf8().constData(), nullptr, nullptr, nullptr);
    if (resultCode != SQLITE_OK)
        throw sqliteError(handle(), resultCode, m_path);
}

void SqliteConnection::begin()
{
    takeTurn();
    m_locks->transactionBegun();
    m_changesBefore = sqlite3_total_changes64(handle());
}

// A long wait comes of a long run, whose user the lock file tells.
void SqliteConnection::takeTurn()
{
    const QScopedValueRollback beginning(m_isBeginning, true);
    const auto waited = qScopeGuard([this] { m_locks->waited(); });
    try {
        prepare(u"BEGIN IMMEDIATE"_s)->execute();
    } catch (const EngineError &error) {
        const std::optional<LockOwner> owner =
            error.code() == ErrorCode::Busy ? m_locks->ownerOfRun() : std::nullopt;
        if (!owner)
            throw;
        raise(ErrorCode::Busy,
              Texts::tr("%1 is being written to by another user (%2). Try again in a moment.")
                  .arg(QFileInfo(m_path).fileName(), owner->description()),
              error.driverText());
    }
}

void SqliteConnection::commit()
{
    requireOwnFile();
    const bool stamped = m_watch && sqlite3_total_changes64(handle()) != m_changesBefore;
    if (stamped)
        stamp();
    try {
        prepare(u"COMMIT"_s)->execute();
    } catch (const EngineError &) {
        if (!isCommittedAllTheSame()) {
            coverFailedCommit();
            throw;
        }
    }
    if (stamped)
        m_watch->committed();
    m_locks->transactionEnded();
}

// Without a log a commit is done when its journal is gone. Where only the sync of that has failed it is made up for; if it
// fails again nobody knows what the disk holds, and what is said is the error.
bool SqliteConnection::isCommittedAllTheSame() const
{
    return sqlite3_extended_errcode(handle()) == SQLITE_IOERR_DIR_FSYNC && syncFolder(QFileInfo(m_path).path());
}

// A commit whose sync has failed stands in the log. SQLite has undone it for those who have the file open, but whoever opens
// it anew while the log is still there takes it for done. A commit that changes nothing is written over it, and may fail likewise.
void SqliteConnection::coverFailedCommit() noexcept
{
    const auto run = [this](const QByteArray &sql) {
        return sqlite3_exec(handle(), sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
    };
    try {
        if (inTransaction() || isWritingKeptOutByReading() || !run("BEGIN IMMEDIATE"))
            return;
        const StatementPtr version = prepare(u"PRAGMA user_version"_s); // now that nobody else writes it
        if (version->next()) {
            const QByteArray same = QByteArray::number(version->intAt(0));
            version->reset();
            run("PRAGMA user_version = " + same + "; COMMIT");
        }
    } catch (const EngineError &) { // not even that can be read any more
    }
    if (inTransaction())
        run("ROLLBACK");
}

void SqliteConnection::stamp()
{
    if (const std::optional<int> stamp = m_watch->stampDue())
        execute(u"PRAGMA user_version = %1"_s.arg(*stamp));
}

void SqliteConnection::rollback() noexcept
{
    if (inTransaction())
        sqlite3_exec(handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    m_locks->transactionEnded();
}

std::unique_ptr<Connection> SqliteConnection::openMoment(const Database &database, ReadFrom)
{
    if (!m_watch)
        raise(ErrorCode::WrongState, Texts::tr("A database in memory has one connection only."));
    requireOwnFile();
    auto reader = std::make_unique<SqliteConnection>(m_path, Missing::Fail, database.session().applicationUser);
    requireOwnFile(); // or the reader has opened another one
    reader->execute(
        u"PRAGMA query_only = ON; BEGIN; SELECT count(*) FROM sqlite_schema"_s); // the first read counts
    return reader;
}

// A rollback journal is written only while nobody reads.
bool SqliteConnection::isWritingKeptOutByReading()
{
    const StatementPtr journal = prepare(u"PRAGMA journal_mode"_s);
    return journal->next() && journal->textAt(0) != "wal"_L1;
}

std::function<void()> SqliteConnection::interrupter()
{
    return [db = handle()] { sqlite3_interrupt(db); };
}

std::optional<int> SqliteConnection::writingPrograms() { return m_locks->programs(); }

bool SqliteConnection::isAwaited() { return m_locks->isAwaited(); }

bool SqliteConnection::inTransaction() const { return sqlite3_get_autocommit(handle()) == 0; }

qint64 SqliteConnection::lastInsertId() { return sqlite3_last_insert_rowid(handle()); }

std::unique_ptr<Statement> SqliteConnection::createStatement(const QString &sql)
{
    return std::make_unique<SqliteStatement>(handle(), sql, m_path);
}

std::unique_ptr<Connection> openSqliteInMemory() { return SqliteConnection::inMemory(); }

std::unique_ptr<Connection> openSqlite(const Database &database)
{
    const QString &folder = database.directory;
    if (folder.isEmpty())
        raise(ErrorCode::CannotOpen,
              Texts::tr("No database folder has been set. Choose the folder in the settings."));
    if (QFileInfo(folder).isFile())
        raise(ErrorCode::CannotOpen,
              Texts::tr("%1 is a file. Name the folder that holds the database.").arg(folder));
    if (!QFileInfo(folder).isDir())
        raise(ErrorCode::NoDatabase,
              Texts::tr("The database folder %1 does not exist or cannot be reached. Check the settings and the "
                        "network.")
                  .arg(folder));
    if (!QFileInfo(folder).isExecutable())
        raise(
            ErrorCode::AccessDenied,
            Texts::tr("You have no right to enter the database folder %1. Ask its owner for access.").arg(folder));
    const QString fileName = database.name() + ".sqlite"_L1;
    const QString path = folder + u'/' + fileName;
    if (!database.createIfMissing && !QFileInfo::exists(path))
        raise(ErrorCode::NoDatabase,
              Texts::tr("There is no database %1 in %2. Check the folder in the settings, or make a new "
                        "company.")
                  .arg(fileName, folder));
    const auto missing =
        database.createIfMissing ? SqliteConnection::Missing::Create : SqliteConnection::Missing::Fail;
    return std::make_unique<SqliteConnection>(path, missing, database.session().applicationUser);
}

} // namespace Engine
