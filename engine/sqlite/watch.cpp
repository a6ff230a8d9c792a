#include "engine/sqlite/watch.h"

#include "engine/error.h"
#include "engine/sqlite/locks.h"

#include <algorithm>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QtEndian>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

constexpr int stampPlace = 60; // of the header field that SQLite leaves to the application ("user version")

QStringList wordsOf(const FileIdentity &file)
{
    return {QString::number(file.device), QString::number(file.file), QString::number(file.born)};
}

FileIdentity identityFrom(const QStringList &words, qsizetype at)
{
    return {words[at].toULongLong(), words[at + 1].toULongLong(), words[at + 2].toLongLong()};
}

// Reads by SQLite's own handle: closing another one would free SQLite's locks.
bool readFile(sqlite3 *db, void *bytes, int count, qint64 from)
{
    sqlite3_file *file = nullptr;
    return sqlite3_file_control(db, "main", SQLITE_FCNTL_FILE_POINTER, &file) == SQLITE_OK && file && file->pMethods
        && file->pMethods->xRead(file, bytes, count, from) == SQLITE_OK;
}

} // namespace

bool SqliteWatch::isDatabase(sqlite3 *db)
{
    char first = 0;
    QByteArray beginning(sizeof "SQLite format 3", '\0');
    return !readFile(db, &first, 1, 0)
        || (readFile(db, beginning.data(), static_cast<int>(beginning.size()), 0)
            && beginning.startsWith("SQLite format 3"));
}

QString SqliteWatch::realPath(sqlite3 *db) { return QString::fromUtf8(sqlite3_db_filename(db, "main")); }

SqliteWatch::SqliteWatch(sqlite3 *db, const QString &path, FileLocks &locks)
    : m_db(db)
    , m_path(path)
    , m_realPath(realPath(db))
    , m_locks(locks)
{
    m_memo.file = identityOfFile(m_realPath).value_or(FileIdentity());
    m_memo.stamp = headerStamp();
    m_memo.start = systemStart();
    m_memo.generation = 1;
    const std::optional<Memo> before = readMemo();
    if (!before)
        return;
    // A power cut takes back a header that was not on the disk yet, and the log makes up for it.
    const bool putBack = before->start == m_memo.start && m_memo.stamp < before->stamp;
    const bool replaced = before->file != m_memo.file || putBack;
    m_memo.generation = before->generation + (replaced ? 1 : 0);
    if (replaced)
        putLogAside(before->log);
}

void SqliteWatch::opened()
{
    int moved = 0;
    sqlite3_file_control(m_db, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    if (moved != 0 || identityOfFile(m_realPath) != m_memo.file)
        refuse(State::Replaced); // in the very moment of opening
    m_memo.log = identityOfFile(logPath()).value_or(FileIdentity());
    m_logIndex = identityOfFile(logIndexPath()).value_or(FileIdentity());
    m_memo.stamp = std::min<qint64>(headerStamp(), storedStamp()); // the header may be in the middle of a commit
    std::optional<Memo> written = readMemo();
    if (!written || !written->isOfSameFiles(m_memo) || written->start != m_memo.start) {
        writeMemo();
        written = readMemo();
    }
    m_hasMemo = written && written->isOfSameFiles(m_memo);
    m_opened = true;
}

std::optional<SqliteWatch::Memo> SqliteWatch::readMemo() const
{
    const QStringList words = m_locks.memo().split(u' ');
    if (words.size() < 9)
        return std::nullopt;
    return Memo{words[0].toULongLong(), identityFrom(words, 1), identityFrom(words, 4), words[7].toLongLong(),
                words[8]};
}

void SqliteWatch::writeMemo() const
{
    const QStringList words = QStringList(QString::number(m_memo.generation)) + wordsOf(m_memo.file)
        + wordsOf(m_memo.log) + QStringList{QString::number(m_memo.stamp), m_memo.start};
    m_locks.setMemo(words.join(u' '));
}

// What stands in the file itself, whatever the log holds besides. A file that is too short for a header, as a new one
// without a log is up to its first write, is lower than all others.
qint64 SqliteWatch::headerStamp() const
{
    qint32 stamp = 0;
    return readFile(m_db, &stamp, sizeof stamp, stampPlace) ? qFromBigEndian(stamp) : -1;
}

int SqliteWatch::storedStamp() const
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(m_db, "PRAGMA user_version", -1, &statement, nullptr) != SQLITE_OK)
        return -1;
    const int stamp = sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_int(statement, 0) : -1;
    sqlite3_finalize(statement);
    return stamp;
}

// Without a log a commit writes the header in place and may still be taken back, unless SQLite's lock keeps it out.
bool SqliteWatch::isHeaderSettled() const
{
    return m_memo.log != FileIdentity() || sqlite3_txn_state(m_db, "main") != SQLITE_TXN_NONE;
}

bool SqliteWatch::isContentOurs()
{
    const qint64 stamp = headerStamp();
    if (stamp < m_memo.stamp)
        return false;
    if (isHeaderSettled())
        m_memo.stamp = stamp;
    if (!m_hasMemo)
        return true;
    const std::optional<Memo> written = readMemo();
    if (!written || !written->isOfSameFiles(m_memo))
        return false;
    if (written->stamp < m_memo.stamp)
        writeMemo();
    return written->stamp <= stamp || written->stamp <= headerStamp();
}

SqliteWatch::State SqliteWatch::state()
{
    if (!m_opened || m_lost != State::Ours)
        return m_lost;
    const std::optional<FileIdentity> file = identityOfFile(m_realPath);
    if (!file)
        return State::Elsewhere;
    if (file != m_memo.file || !isContentOurs())
        return m_lost = State::Replaced;
    if (m_path != m_realPath && identityOfFile(m_path) != m_memo.file)
        return State::Elsewhere;
    if (m_memo.log == FileIdentity())
        return State::Ours;
    const bool logInPlace = identityOfFile(logPath()) == m_memo.log && identityOfFile(logIndexPath()) == m_logIndex;
    return logInPlace ? State::Ours : State::WithoutLog;
}

void SqliteWatch::check()
{
    const State now = state();
    if (now == State::Ours)
        return;
    if (now == State::Replaced)
        putLogAside(m_memo.log);
    else if (now == State::WithoutLog) // it is still in hand here, and what it holds belongs into the file
        sqlite3_wal_checkpoint_v2(m_db, nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    refuse(now);
}

void SqliteWatch::beforeClosing() noexcept
{
    const State now = state();
    if (now == State::Replaced)
        putLogAside(m_memo.log);
    if (now == State::Replaced || now == State::Elsewhere)
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

// It holds the last changes of a file that is gone, so it is kept under another name.
void SqliteWatch::putLogAside(const FileIdentity &log) const
{
    if (log == FileIdentity() || identityOfFile(logPath()) != log)
        return;
    QString aside;
    for (int number = 1; aside.isEmpty() || QFileInfo::exists(aside); ++number)
        aside = u"%1-replaced-%2"_s.arg(logPath()).arg(number);
    QFile::remove(logIndexPath());
    QFile::rename(logPath(), aside);
}

void SqliteWatch::refuse(State state) const
{
    const QString file = state == State::WithoutLog ? logPath() : m_path;
    raise(ErrorCode::FileReplaced,
          Texts::tr("The file %1 has been deleted, moved or replaced while it was in "
                    "use. Nothing can be saved any more: close the program and open "
                    "it anew.")
              .arg(file));
}

std::optional<int> SqliteWatch::stampDue()
{
    m_stampingOver = headerStamp();
    if (m_stampingOver == m_stampedOver)
        return std::nullopt;
    m_stamping = storedStamp() + 1;
    return m_stamping > 0 ? std::optional(m_stamping) : std::nullopt;
}

void SqliteWatch::committed()
{
    m_stampedOver = m_stampingOver;
    if (m_memo.log != FileIdentity())
        return; // the header gets the stamp with the rest of the log
    m_memo.stamp = std::max<qint64>(m_memo.stamp, m_stamping);
    const std::optional<Memo> written = m_hasMemo ? readMemo() : std::nullopt;
    if (written && written->isOfSameFiles(m_memo) && written->stamp < m_memo.stamp)
        writeMemo();
}

} // namespace Engine
