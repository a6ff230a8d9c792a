#pragma once

#include "engine/platform.h"

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
// Another file is told by its identity. Another content of the same file (a backup copied over it) is told by a stamp
// in its header, which is raised with the first write after each time that the log was copied into the file, and so is
// lower in every earlier copy. Not noticed: the content of another database with a higher stamp, and a copy made
// since the header was written last, which differs by nothing but what the log still holds.
//
// The lock file's memo says which log belongs to which file, for programs that open the database later.
class SqliteWatch
{
public:
    // The database is open, but nothing has been read of it yet. A log that belongs to another file is put aside now.
    SqliteWatch(sqlite3 *db, const QString &path, FileLocks &locks);

    // The log is in use now. Up to here nothing is refused.
    void opened();
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
    struct Memo
    {
        quint64 generation = 0; // another one each time that the file was found replaced
        FileIdentity file;
        FileIdentity log; // all 0 without a write-ahead log
        qint64 stamp = 0;
        QString start; // of the computer

        bool isOfSameFiles(const Memo &other) const
        {
            return generation == other.generation && file == other.file && log == other.log;
        }
    };
    enum class State { Ours, Elsewhere, Replaced, WithoutLog };

    QString logPath() const { return m_realPath + QStringLiteral("-wal"); }
    QString logIndexPath() const { return m_realPath + QStringLiteral("-shm"); }
    std::optional<Memo> readMemo() const;
    void writeMemo() const;
    qint64 headerStamp() const;
    // With what the log holds, and the transaction in progress has written; -1 where it cannot be read.
    int storedStamp() const;
    bool isHeaderSettled() const;
    State state();
    bool isContentOurs();
    void putLogAside(const FileIdentity &log) const;
    [[noreturn]] void refuse(State state) const;

    sqlite3 *m_db;
    QString m_path;
    QString m_realPath;
    FileLocks &m_locks;
    Memo m_memo;
    bool m_opened = false;
    bool m_hasMemo = false; // false where the lock file did not take it
    FileIdentity m_logIndex;
    State m_lost = State::Ours; // how it was lost for good
    std::optional<qint64> m_stampedOver; // what the file's header said when the stamp was raised last
    std::optional<qint64> m_stampingOver;
    int m_stamping = 0;
};

} // namespace Engine
