#pragma once

#include "engine/store/readorigin.h"
#include "engine/values/layout.h"
#include "engine/values/value.h"

#include <functional>
#include <memory>
#include <optional>
#include <QByteArray>
#include <QString>

// The driver interface: one connection to a store and its prepared statements. Two implementations of the same
// shape, SQLite and PostgreSQL. Parameters are written "?" in both; everything else that differs between the stores
// stands in Dialect. A failure of any call throws EngineError.

namespace Engine {

class Database;
class Dialect;
class LockManager;
class RunMemory;

// A prepared statement with typed parameters and columns, both counted from 0.
class Statement
{
public:
    virtual ~Statement() = default;

    virtual void bindNull(int parameter) = 0;
    virtual void bindInt(int parameter, qint64 value) = 0;
    virtual void bindDouble(int parameter, double value) = 0;
    virtual void bindBool(int parameter, bool value) = 0;
    virtual void bindText(int parameter, const QString &value) = 0; // dates too, as in the stored form
    void bind(int parameter, const Value &value);

    // The next row; the first call executes. Returns false after the last row.
    virtual bool next() = 0;
    // Executes to the end and returns the number of rows changed.
    virtual qint64 execute() = 0;
    // Executes without waiting for the answer, where the store can do that. Order is kept; the answer, and with it
    // a failure, comes at the latest with Connection::drain() or with the next statement that is waited for. A
    // failed statement makes those sent after it fail as well, up to the drain. Inside a transaction only.
    virtual void send() = 0;
    // Begins to execute, so that what is asked next travels with it; next() or execute() take the answer, and throw
    // where that is a failure. Where the store is at hand nothing is gained by that, and they do all of it.
    virtual void ask() { }
    // Ends the execution and frees its locks and rows; bindings stay. Done as well when the pointer is let go.
    virtual void reset() = 0;

    // Of a statement that has been executed.
    virtual int columnCount() = 0;
    virtual QString columnName(int column) = 0;
    virtual bool isNull(int column) const = 0;
    virtual qint64 intAt(int column) const = 0;
    virtual double doubleAt(int column) const = 0;
    virtual QString textAt(int column) const = 0;
    Value valueAt(int column, FieldType type) const;
    // The type that the store itself gives the column, for queries without a layout. Money reads as Float.
    virtual FieldType columnType(int column) = 0;

protected:
    friend class Connection;
    friend struct StatementReturn;
    class Connection *m_owner = nullptr;
    QString m_cacheKey;
};

// Hands a statement back to its connection's cache instead of destroying it.
struct StatementReturn
{
    void operator()(Statement *statement) const;
};
using StatementPtr = std::unique_ptr<Statement, StatementReturn>;

// Many rows into one table, by the fastest way that the store has. Within a transaction that it makes useless when it fails.
class BulkInsert
{
public:
    virtual ~BulkInsert() = default;

    virtual void add(const QList<Value> &row) = 0; // in the order of the layout's fields
    virtual void finish() = 0; // all of them stand there; a failure comes here at the latest
};

// One connection to a store. Not thread-safe: use on the thread that opened it.
class Connection
{
public:
    virtual ~Connection();

    virtual const Dialect &dialect() const = 0;
    // What messages call the store: the file's path, or the server's address and database.
    virtual QString location() const = 0;
    virtual QString identity() = 0; // see Database::identity()

    // A statement ready to be bound. Prepared once for each text and kept; while one is in use, a second request
    // for the same text gets a statement of its own.
    StatementPtr prepare(const QString &sql);
    // Executes a statement that writes. Within a run (BatchedRun) its answer is not waited for.
    void write(Statement &statement);
    // What describe() gives; within a run as it was when first asked for.
    std::optional<TableLayout> layoutOf(const QString &table);
    // Runs statements without parameters, several separated by semicolons if need be.
    virtual void execute(const QString &script) = 0;
    // Whether Statement::send() leaves the answer for later, so that a failure may come after other statements.
    virtual bool sendsAhead() const = 0;
    // Waits for everything sent and reports the first failure.
    virtual void drain() = 0;

    // Whether a server has ended the connection. Asks nothing, so that it may be called now and then; what has been lost is
    // made anew by the next statement.
    virtual bool hasEnded() { return false; }

    // A write transaction. In SQLite it takes the write lock at once, waiting up to the busy time-out.
    virtual void begin() = 0;
    // Where the answer is lost with the connection it is looked up: when the changes are there this returns, when they are
    // not it throws ConnectionLost, and AnswerLost when that could not be found out in time.
    virtual void commit() = 0;
    virtual void rollback() noexcept = 0;
    // False again when the store has rolled back by itself (a full disk, a lost connection).
    virtual bool inTransaction() const = 0;

    // Another connection to the same store, in a transaction that reads what stands there now and writes nothing; see
    // ReadMoment. Its commit throws when something else has come into the place of what it has read.
    virtual std::unique_ptr<Connection> openMoment(const Database &database, ReadFrom from) = 0;
    // Whether nobody can write while such a transaction lasts.
    virtual bool isWritingKeptOutByReading() { return false; }

    // What ends the statement under way, which fails then; to be called on whatever thread while this connection lives.
    virtual std::function<void()> interrupter() = 0;

    // How many programs that have the store open have held a lock of a record or table since; nullopt where it does not tell.
    virtual std::optional<int> writingPrograms() { return std::nullopt; }

    // Whether somebody else waits to write while a write transaction of this connection lasts, as far as the store tells: a
    // file takes one writer at a time.
    virtual bool isAwaited() { return false; }

    // Another connection for what only reads and stays open, as a list on a screen does: to a standby server where there
    // is one. What this program has written is there with every statement; where the standby is too late with it, fails
    // or goes away, the connection goes on with the primary by itself. It takes no writes. Null where there are no servers.
    virtual std::unique_ptr<Connection> openReading(const Database &) { return nullptr; }
    // Of such a connection: looks for a standby again, and waits a little for all that there is by now.
    virtual void renewReading() { }
    virtual ReadOrigin origin() const { return {}; } // of what it reads

    // What the store holds. A missing table gives nullopt. Indexes that the engine did not make are left out.
    virtual std::optional<TableLayout> describe(const QString &table) = 0;

    virtual QStringList tables() = 0; // all that it holds, others' as well, by name
    virtual qint64 size() = 0; // bytes that a copy takes, about
    // Copies the store as this connection sees it into a new file, page by page. False where it is no file.
    virtual bool copyTo(const QString &, const std::function<void()> &) { return false; }
    // Takes back the database that connecting has made on a server (Database::createIfMissing), unless there is something
    // in it by now or somebody else is connected to it. The connection is good for nothing then. A file stays.
    virtual void unmake() noexcept { }

    // What the store finds damaged in what it holds, in its own words; empty: nothing. Reads everything once, and tells
    // the step now and then.
    virtual QStringList damage(const std::function<void()> &step) = 0;

    // Verifies a table and mends it as Database::repairTable says; returns the rows lost. Nobody else has it open.
    virtual qint64 repair(const TableLayout &table) = 0;

    // Makes room for a long run of writes, or goes back to what suits a screen; see BulkWriting.
    virtual void setBulk(bool) { }

    // The table must be there. Until finish() nothing else goes over the connection.
    virtual std::unique_ptr<BulkInsert> bulkInsert(const TableLayout &layout);

    // Drops the statements kept, after a table has changed its shape.
    void forgetStatements() { clearStatementCache(); }

    // The value that the last insert of this connection gave to an auto-increment field.
    virtual qint64 lastInsertId() = 0;

    // This connection's record locks, table locks and open locks.
    virtual LockManager &locks() = 0;

    bool isInRun() const { return m_run != nullptr; }

protected:
    virtual std::unique_ptr<Statement> createStatement(const QString &sql) = 0;
    void clearStatementCache();

private:
    friend struct StatementReturn;
    friend class BatchedRun;
    friend class RunMemory;
    struct Cache;

    StatementPtr prepareOwn(const QString &sql);

    std::unique_ptr<Cache> m_cache;
    RunMemory *m_run = nullptr;

protected:
    Connection();
};

// A transaction that is rolled back unless committed. Within an open one it does nothing but join it.
class Transaction
{
public:
    explicit Transaction(Connection &connection);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();

private:
    Connection &m_connection;
    bool m_own;
};

} // namespace Engine
