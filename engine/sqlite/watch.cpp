#include "engine/sqlite/watch.h"

#include "engine/sqlite/handles.h"
#include "engine/sqlite/locks.h"
#include "engine/values/error.h"

#include <algorithm>
#include <limits>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStringList>
#include <QtEndian>
#include <sqlite3.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

// Of the header fields that SQLite leaves to the application ("user version", "application ID").
constexpr int stampPlace = 60;
constexpr int numberPlace = 68;

// No two copies that were written to separately come to the same stamp, but for one in so many.
constexpr int largestStep = 256;

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

bool beginsLikeDatabase(sqlite3 *db)
{
    char first = 0;
    QByteArray beginning(sizeof "SQLite format 3", '\0');
    return !readFile(db, &first, 1, 0)
        || (readFile(db, beginning.data(), static_cast<int>(beginning.size()), 0)
            && beginning.startsWith("SQLite format 3"));
}

} // namespace

bool SqliteWatch::isDatabase(sqlite3 *db)
{
    if (beginsLikeDatabase(db))
        return true;
    if (!QFileInfo::exists(realPath(db) + "-journal"_L1))
        return false;
    // Cut off by the power in its very first write. Reading takes that back, by the journal.
    sqlite3_exec(db, "PRAGMA schema_version", nullptr, nullptr, nullptr);
    return beginsLikeDatabase(db);
}

QString SqliteWatch::realPath(sqlite3 *db) { return QString::fromUtf8(sqlite3_db_filename(db, "main")); }

SqliteWatch::SqliteWatch(sqlite3 *db, const QString &path, FileLocks &locks)
    : m_db(db)
    , m_path(path)
    , m_realPath(realPath(db))
    , m_locks(locks)
{
    requireOneName();
    m_memo.file = identityOfFile(m_realPath).value_or(FileIdentity());
    m_memo.start = systemStart();
    m_memo.generation = 1;
    m_locks.holdingMemo([this] { recognize(); });
}

void SqliteWatch::requireOneName() const
{
    if (namesOfFile(m_realPath) > 1)
        raise(
            ErrorCode::CannotOpen,
            Texts::tr("The file %1 has a second name (a hard link). Two users who open it by different names would "
                      "destroy each other's work. Remove the other name, or put a copy of the file in its place.")
                .arg(m_path));
}

// Whether the file is still the one that the memo of former programs speaks of.
void SqliteWatch::recognize()
{
    const std::optional<Memo> before = readMemo();
    if (!before)
        return;
    // A power cut takes back a header that was not on the disk yet, and the log makes up for it.
    const bool otherContent = before->start == m_memo.start && !before->mayHave(header());
    const bool replaced = before->file != m_memo.file || otherContent;
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
    const int stored = storedStamp();
    // Nobody stamps before the memo speaks of these files, so what has been read holds until it does.
    m_locks.holdingMemo([this, stored] {
        m_memo.stamp = std::min<qint64>(header().stamp, stored); // the header may be in the middle of a commit
        m_memo.latest = std::max<qint64>(header().stamp, stored);
        std::optional<Memo> written = readMemo();
        if (!written || !written->isOfSameFiles(m_memo) || written->start != m_memo.start) {
            writeMemo(m_memo);
            written = readMemo();
        }
        m_hasMemo = written && written->isOfSameFiles(m_memo);
    });
    m_opened = true;
}

void SqliteWatch::numbered(quint32 number)
{
    m_memo.number = number;
    const std::optional<Memo> written = readMemo();
    if (written && written->number != number)
        change([number](Memo &memo) { memo.number = number; });
}

std::optional<SqliteWatch::Memo> SqliteWatch::readMemo() const
{
    const QStringList words = m_locks.memo().split(u' ');
    if (words.size() < 9)
        return std::nullopt;
    Memo memo{words[0].toULongLong(), identityFrom(words, 1), identityFrom(words, 4), words[7].toLongLong(),
              words[8]};
    if (words.size() > 10) {
        memo.latest = words[9].toLongLong();
        memo.number = words[10].toUInt();
    }
    return memo;
}

void SqliteWatch::writeMemo(const Memo &memo) const
{
    const QStringList words = QStringList(QString::number(memo.generation)) + wordsOf(memo.file) + wordsOf(memo.log)
        + QStringList{QString::number(memo.stamp), memo.start, QString::number(memo.latest),
                      QString::number(memo.number)};
    m_locks.setMemo(words.join(u' '));
}

// Of the memo that all share, unless it speaks of other files by now.
void SqliteWatch::change(const std::function<void(Memo &)> &step) const
{
    if (!m_hasMemo)
        return;
    m_locks.holdingMemo([&] {
        std::optional<Memo> written = readMemo();
        if (!written || !written->isOfSameFiles(m_memo))
            return;
        step(*written);
        writeMemo(*written);
    });
}

bool SqliteWatch::Memo::mayHave(const Header &header) const
{
    if (number != 0 && header.number != 0 && header.number != number)
        return false;
    return header.stamp == stamp || header.stamp == latest || (latest < 0 && header.stamp >= stamp);
}

SqliteWatch::Header SqliteWatch::header() const
{
    char bytes[numberPlace + sizeof(quint32) - stampPlace];
    if (!readFile(m_db, bytes, sizeof bytes, stampPlace))
        return {};
    return {qFromBigEndian<qint32>(bytes), qFromBigEndian<quint32>(bytes + (numberPlace - stampPlace))};
}

int SqliteWatch::storedStamp() const
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(m_db, "PRAGMA user_version", -1, &statement, nullptr) != SQLITE_OK)
        return -1;
    const SqliteStatementHandle owned(statement);
    return sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_int(statement, 0) : -1;
}

// Without a log a commit writes the header in place and may still be taken back, unless SQLite's lock keeps it out.
bool SqliteWatch::isHeaderSettled() const
{
    return m_memo.log != FileIdentity() || sqlite3_txn_state(m_db, "main") != SQLITE_TXN_NONE;
}

bool SqliteWatch::isContentOurs()
{
    const Header now = header(); // before the memo, which is never behind it
    if (now.stamp < m_memo.stamp)
        return false;
    if (!m_hasMemo) {
        if (isHeaderSettled())
            m_memo.stamp = now.stamp;
        return m_memo.number == 0 || now.number == 0 || now.number == m_memo.number;
    }
    const std::optional<Memo> written = readMemo();
    if (!written || !written->isOfSameFiles(m_memo) || !written->mayHave(now))
        return false;
    if (isHeaderSettled())
        m_memo.stamp = now.stamp;
    m_memoIsBehind = written->stamp < m_memo.stamp;
    return true;
}

SqliteWatch::State SqliteWatch::look()
{
    const std::optional<FileIdentity> file = identityOfFile(m_realPath);
    if (!file)
        return State::Elsewhere;
    if (file != m_memo.file || !isContentOurs())
        return State::Replaced;
    if (m_path != m_realPath && identityOfFile(m_path) != m_memo.file)
        return State::Elsewhere;
    if (m_memo.log == FileIdentity())
        return State::Ours;
    const bool logInPlace = identityOfFile(logPath()) == m_memo.log && identityOfFile(logIndexPath()) == m_logIndex;
    return logInPlace ? State::Ours : State::WithoutLog;
}

SqliteWatch::State SqliteWatch::state()
{
    if (!m_opened || m_lost != State::Ours)
        return m_lost;
    State now = look();
    if (now != State::Ours) // unless another program was about to write the header or the memo
        m_locks.holdingMemo([&] { now = look(); });
    if (now == State::Replaced)
        m_lost = now;
    if (now == State::Ours && std::exchange(m_memoIsBehind, false))
        change([this](Memo &memo) { memo.stamp = std::max(memo.stamp, m_memo.stamp); });
    return now;
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
    const qint64 before = header().stamp;
    m_stampingOver = before;
    if (before == m_stampedOver)
        return std::nullopt;
    const int stored = storedStamp();
    m_stamping = stored;
    if (m_memo.log != FileIdentity() && stored != before)
        return std::nullopt; // others have stamped over it
    m_stamping += QRandomGenerator::global()->bounded(1, largestStep + 1);
    if (m_stamping > std::numeric_limits<int>::max())
        return std::nullopt;
    change([&](Memo &memo) {
        memo.stamp = before;
        memo.latest = m_stamping;
    });
    return static_cast<int>(m_stamping);
}

void SqliteWatch::committed()
{
    m_stampedOver = m_stampingOver;
    if (m_memo.log != FileIdentity())
        return; // the header gets the stamp with the rest of the log
    m_memo.stamp = std::max(m_memo.stamp, m_stamping);
    change([this](Memo &memo) { memo.stamp = std::max(memo.stamp, m_stamping); });
}

} // namespace Engine
