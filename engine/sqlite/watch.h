#pragma once

#include "engine/store/platform.h"

#include <functional>
#include <optional>
#include <QString>

struct sqlite3;

namespace Engine {

class FileLocks;

// Whether the file that SQLite has open is still the one that its path leads to.
//
// SQLite goes on with the file it has open. When that has been deleted, moved or replaced, what is saved would be lost;
// and the write-ahead log, which SQLite knows by its name alone, would be played into the replacement. So every write
// asks first, and a log left beside a replacement is put aside before anybody reads the two together.
//
// Another file is told by its identity, another database by the number in its header. Another content of the same file
// (an earlier or a later copy laid over it) is told by a stamp in the header, which is raised by a random step with the
// first write after each time that the log was copied into the file. So the header bears one of two stamps: the one that
// it had when it was stamped over last, or the one that the log holds since then. Not noticed: a copy made since the
// header was written last, which differs by nothing but what the log still holds.
//
// The lock file's memo keeps both stamps for all programs, and says which log belongs to which file. A stamp stands in
// the memo before it can stand in the header; what is written there is read and written under the memo's lock. Who finds
// a difference looks again under that lock before he refuses anything.
class SqliteWatch
{
public:
    // The database is open, but nothing has been read of it yet. A log that belongs to another file is put aside now.
    // Throws CannotOpen when the file has another name, under which others would not meet its locks and its log.
    SqliteWatch(sqlite3 *db, const QString &path, FileLocks &locks);

    // The log is in use now. Up to here nothing is refused.
    void opened();
    // The database has been given this number.
    void numbered(quint32 number);
    // Throws FileReplaced when nothing must be written any more.
    void check();
    // The file has been put back or replaced: SQLite must not copy the log into it any more.
    void beforeClosing() noexcept;

    // The stamp that the transaction in progress has to write before its commit, if any.
    std::optional<int> stampDue();
    void committed(); // a transaction for which that was asked

    // The file itself, whatever links lead to it.
    static QString realPath(sqlite3 *db);
    // Whether the file is empty or begins as databases do; asked without reading it as one.
    static bool isDatabase(sqlite3 *db);

private:
    // What the file itself says, whatever the log holds besides.
    struct Header
    {
        qint64 stamp = -1; // of a file that is too short for a header, as a new one is up to its first write
        quint32 number = 0; // none yet
    };
    struct Memo
    {
        quint64 generation = 0; // another one each time that the file was found replaced
        FileIdentity file;
        FileIdentity log; // all 0 without a write-ahead log
        qint64 stamp = 0; // which the header has borne
        QString start; // of the computer
        qint64 latest = -1; // which the header gets next; -1 in the memo of a version that does not know it
        quint32 number = 0; // of the database

        bool isOfSameFiles(const Memo &other) const
        {
            return generation == other.generation && file == other.file && log == other.log;
        }
        bool mayHave(const Header &header) const;
    };
    enum class State { Ours, Elsewhere, Replaced, WithoutLog };

    QString logPath() const { return m_realPath + QStringLiteral("-wal"); }
    QString logIndexPath() const { return m_realPath + QStringLiteral("-shm"); }
    void requireOneName() const;
    std::optional<Memo> readMemo() const;
    void writeMemo(const Memo &memo) const;
    void change(const std::function<void(Memo &)> &step) const;
    Header header() const;
    // With what the log holds, and the transaction in progress has written; -1 where it cannot be read.
    int storedStamp() const;
    bool isHeaderSettled() const;
    void recognize();
    bool isContentOurs();
    State look();
    State state();
    void putLogAside(const FileIdentity &log) const;
    [[noreturn]] void refuse(State state) const;

    sqlite3 *m_db; // the connection's
    QString m_path;
    QString m_realPath;
    FileLocks &m_locks;
    Memo m_memo;
    bool m_opened = false;
    bool m_hasMemo = false; // false where the lock file did not take it
    bool m_memoIsBehind = false; // it does not know yet that the header has got the latest stamp
    FileIdentity m_logIndex;
    State m_lost = State::Ours; // how it was lost for good
    std::optional<qint64> m_stampedOver; // what the file's header said when the stamp was raised last
    std::optional<qint64> m_stampingOver;
    qint64 m_stamping = 0;
};

} // namespace Engine
