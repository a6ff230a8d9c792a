#pragma once

#include "engine/sqlite/dialect.h"
#include "engine/sqlite/handles.h"
#include "engine/store/driver.h"

#include <chrono>

namespace Engine {

class Database;
class FileLocks;
class SqliteWatch;

// A database file, with the lock file beside it. SQLite's own locks last for one transaction; those of records and
// tables stand in the lock file. A file reached through links has its lock file beside itself, as one reached directly.
class SqliteConnection final : public Connection
{
public:
    enum class Missing { Fail, Create };

    // The user is shown to others as the owner of the locks.
    SqliteConnection(const QString &path, Missing missing, const QString &user);
    static std::unique_ptr<SqliteConnection> inMemory();
    ~SqliteConnection() override;

    const Dialect &dialect() const override { return m_dialect; }
    QString location() const override { return m_path; }
    QString identity() override;
    void execute(const QString &script) override;
    bool sendsAhead() const override { return false; }
    void drain() override { }
    void begin() override;
    void commit() override;
    void rollback() noexcept override;
    bool inTransaction() const override;
    std::unique_ptr<Connection> openMoment(const Database &database, ReadFrom from) override;
    bool isWritingKeptOutByReading() override;
    bool isAwaited() override;
    std::optional<int> writingPrograms() override;
    std::function<void()> interrupter() override;
    std::optional<TableLayout> describe(const QString &table) override;
    QStringList tables() override;
    qint64 size() override;
    bool copyTo(const QString &file, const std::function<void()> &step) override;
    QStringList damage(const std::function<void()> &step) override;
    qint64 repair(const TableLayout &table) override;
    qint64 lastInsertId() override;
    void setBulk(bool bulk) override;
    LockManager &locks() override;

    // Before anything is written: throws FileReplaced when that would be lost, or do damage.
    void requireOwnFile();

    sqlite3 *handle() const { return m_db.get(); }

protected:
    std::unique_ptr<Statement> createStatement(const QString &sql) override;

private:
    SqliteConnection(); // for inMemory()
    void open(int flags);
    void watch(const QString &user);
    void configure();
    void chooseJournal(const QString &journal);
    quint32 number(); // which the header bears for its application, 0 for none
    void giveNumber();
    void giveNumberAtOpening();
    void stamp();
    static int waitForOthers(void *connection,
                             int times); // called by SQLite while another connection is in the way
    bool waitsOn();
    void takeTurn(); // to write
    bool isCommittedAllTheSame() const;
    void coverFailedCommit() noexcept;
    qint64 salvage(const TableLayout &table, const QString &copy); // the rows lost
    QString spelling(const QString &table); // as stored, null when there is no such table

    SqliteDialect m_dialect;
    QString m_path;
    SqliteHandle m_db;
    std::unique_ptr<FileLocks> m_locks;
    std::unique_ptr<SqliteWatch> m_watch; // not of a database in memory
    qint64 m_changesBefore = 0; // the transaction in progress
    std::chrono::milliseconds m_patience{0}; // with others who are in the way
    std::chrono::steady_clock::time_point m_waitingSince;
    bool m_isBeginning = false; // a write transaction
};

} // namespace Engine
