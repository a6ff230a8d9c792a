#pragma once

#include "engine/locks.h"
#include "engine/platform.h"

#include <map>
#include <memory>
#include <set>

namespace Engine {

// Locks as ranges of bytes of one file, far beyond its end. Every table has a stretch of its own: one byte for
// being open, and one for each possible record; the table lock takes all of the latter at once.
//
// The file itself holds one note for each connection, saying whose it is and in which tables it has locks. A note
// counts only while its connection holds the byte that goes with it.
class FileLocks final : public LockManager {
public:
    FileLocks(const QString &path, const QString &user); // an empty path: of a database that nobody else can open
    ~FileLocks() override;

    bool tryOpenShared(const QString &table) override;
    void closeShared(const QString &table) override;
    bool tryOpenExclusive(const QString &table) override;
    void closeExclusive(const QString &table) override;
    bool tryLockRecord(const QString &table, const QList<qint64> &key) override;
    void unlockRecord(const QString &table, const QList<qint64> &key) override;
    bool tryLockTable(const QString &table) override;
    void unlockTable(const QString &table) override;
    bool holdsTable(const QString &table) const override;
    std::optional<LockOwner> ownerOf(const QString &table) override;

private:
    struct Held {
        int shared = 0;
        int exclusive = 0;
        int table = 0;
        std::set<qint64> records; // their bytes
        bool isFree() const { return shared == 0 && exclusive == 0 && table == 0 && records.empty(); }
        bool hasLocks() const { return table > 0 || !records.empty(); }
    };

    bool tryRange(qint64 from, qint64 count, RangeLockFile::Mode mode);
    void freeRange(qint64 from, qint64 count);
    Held *held(const QString &table);
    void forgetIfFree(const QString &table);
    void takeNote();
    void writeNote();

    std::unique_ptr<RangeLockFile> m_file;
    QString m_user;
    std::map<QString, Held> m_held; // by the table's name in lower case
    int m_note = -1;
};

} // namespace Engine
