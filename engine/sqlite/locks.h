#pragma once

#include "engine/store/lockmanager.h"
#include "engine/store/platform.h"

#include <functional>
#include <memory>

namespace Engine {

// Locks as ranges of bytes of one file, far beyond its end. Every table has a stretch of its own: one byte for
// being open, and one for each possible record; the table lock takes all of the latter at once.
//
// The file itself holds one note for each connection, saying whose it is, in which tables it has locks, and since when it
// has which. A note counts only while its connection holds the byte that goes with it. The memo follows the notes.
//
// A lock file that was deleted or replaced keeps nobody out any more: the next lock throws FileReplaced.
class FileLocks final : public LockManager
{
public:
    FileLocks(const QString &path, const QString &user); // an empty path: of a database that nobody else can open
    ~FileLocks() override;

    std::optional<LockOwner> ownerOf(const QString &table) override;
    std::optional<LockOwner> ownerOf(const QString &table, const QList<qint64> &key) override;

    // Called before each lock that is taken; refuses by throwing.
    std::function<void()> beforeLocking;

    // Those who wait for the file's one place to write say so, and whoever has it for long lets them in.
    void wait() noexcept;
    void waited() noexcept;
    bool isAwaited() const; // by somebody else

    int programs() const; // that have left a note and are there still
    std::optional<LockOwner> ownerOfRun() const; // of somebody else who has a table for himself

    // What the users of the database remember about its files, a few words that outlive their programs. Empty when
    // nothing was written yet.
    QString memo() const;
    void setMemo(const QString &text);
    // Does a short step while nobody else does one with the memo. What it reads and writes there belongs together.
    void holdingMemo(const std::function<void()> &step);

protected:
    bool changeOpen(const QString &table, OpenMode from, OpenMode to, bool isToBeDescribed) override;
    qint64 placeOf(const QString &table, const QList<qint64> &key) const override;
    bool acquireRecord(const QString &table, const Place &place) override;
    void releaseRecord(const QString &table, const Place &place) noexcept override;
    bool acquireTable(const QString &table, qint64 since) override;
    void releaseTable(const QString &table, const Held &held) noexcept override;
    void changed() noexcept override; // writes the note

private:
    void requireInPlace() const;
    bool tryRange(qint64 from, qint64 count, RangeLockFile::Mode mode);
    void freeRange(qint64 from, qint64 count);
    void takeNote() noexcept;
    enum class Notes { OfHolders, All };
    QList<QStringList> notesOfOthers(Notes which = Notes::OfHolders) const;
    std::optional<LockOwner> stranger(qint64 from, qint64 count) const;

    std::unique_ptr<RangeLockFile> m_file;
    QString m_user;
    int m_note = -1;
    bool m_waits = false;
};

} // namespace Engine
