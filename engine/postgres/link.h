#pragma once

#include "engine/store/lockmanager.h"
#include "engine/store/readorigin.h"
#include "engine/values/error.h"

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

struct pg_conn;
struct pg_result;

namespace Engine {

struct ClearResult
{
    void operator()(pg_result *result) const;
};
using ResultPtr = std::unique_ptr<pg_result, ClearResult>;

struct FinishConnection
{
    void operator()(pg_conn *handle) const;
};
using PostgresHandle = std::unique_ptr<pg_conn, FinishConnection>;

// Where a remote database is and how it is reached. What libpq's own environment variables say (PGPORT, PGUSER,
// PGPASSWORD, PGPASSFILE, PGSSLROOTCERT ...) comes before the account given here.
struct PostgresTarget
{
    QString host;
    QString database;
    QString user;
    QString password;
    bool requireTls = false;
    QString applicationName;
    std::chrono::milliseconds lockWait{400}; // how long a statement may wait for somebody's lock
    // Whether what a lock has refused may be tried again, after a pause; see Session.
    std::function<bool(std::chrono::steady_clock::time_point since)> mayTryAgain;
    // The same for a server that is gone, for as long as is told.
    std::function<bool(std::chrono::steady_clock::time_point since, std::chrono::milliseconds time)>
        mayWaitForServer;
    std::function<void()> stayAlive; // called while a server says nothing that has spoken before
    std::chrono::milliseconds serverWait{0}; // until another server has taken over; see Session
    std::chrono::milliseconds answerWait{0}; // until a lost answer to a commit has been looked up
    std::function<void(bool isThere)> told; // that the server is gone, and there again
    bool readsOnly = false;
    bool wantsStandby = false; // where there is one; else a server that can be written to
    std::chrono::milliseconds standbyWait{0}; // until it has what was written; see Session

    bool hasSeveral() const { return host.contains(u','); } // servers, one of which can be written to
    QString location() const; // for messages: "database corvane on the server 10.0.0.5"
};

// One server of those that an address names.
struct PostgresServer
{
    QString host;
    QString port;
    bool operator==(const PostgresServer &) const = default;
};

// Start to connect, for PQconnectPoll: to whichever of these servers, or of all, can be written to; or to one as it is.
PostgresHandle beginConnecting(const PostgresTarget &target, const QList<PostgresServer> &servers = {});
PostgresHandle beginConnectingTo(const PostgresServer &server, const PostgresTarget &target);
PostgresServer serverOf(const pg_conn *handle); // the one that it is connected to or just tries

// A statement that takes its rows from the wire one by one, and can take the rest into memory when the wire is
// needed for something else.
class ResultReader
{
public:
    virtual ~ResultReader() = default;
    virtual void readAhead() = 0;
};

// Whoever has a use for the answer to one command among those that are under way.
class AnswerTaker
{
public:
    virtual ~AnswerTaker() = default;
    virtual void takeAnswer(ResultPtr answer) = 0; // a failure as well
    virtual void endAnswer() = 0; // that was all of it
    virtual void loseAnswer() = 0; // it went with the connection

    static AnswerTaker *nobody(); // for answers that are of no use, failures too
    static AnswerTaker *writing(); // the same of what writes, which those have to know who read from a standby
};

// The wire: connecting, and what goes over it in which order. Commands are pipelined: sent one after the other, and
// whoever needs an answer waits for it, by which those of all before it have come as well. So what needs no answer
// costs no journey to a server that is far away. Only scripts go by themselves.
class PostgresLink
{
public:
    explicit PostgresLink(PostgresTarget target); // connects
    ~PostgresLink();
    PostgresLink(const PostgresLink &) = delete;
    PostgresLink &operator=(const PostgresLink &) = delete;

    pg_conn *handle() const { return m_handle.get(); }
    QString location() const { return m_target.location(); }
    bool isLost() const; // until it is made anew
    // Looks whether the server has ended the connection, without asking it anything.
    bool hasEnded();
    // A connection that was lost outside of a transaction has been made anew, so that a reading may be done again.
    bool mayReadAgain(const EngineError &error) const;
    // Grows whenever the statements prepared before are gone.
    int generation() const { return m_generation; }

    // Before a lost connection is made anew: false when that would lose something, such as locks.
    std::function<bool()> mayReconnect;
    std::function<void()> reconnected;

    // Of a link that reads from a standby, outside of transactions: before each statement, and whether one that the standby
    // has refused is to be done again elsewhere.
    std::function<void()> beforeReading;
    std::function<bool()> readElsewhere;
    bool mayReadElsewhere() { return isOnStandby() && !m_inTransaction && readElsewhere && readElsewhere(); }
    bool wantsStandby() const { return m_target.wantsStandby; }
    bool isOnStandby() const { return m_target.wantsStandby && !isLost(); }
    // Connects anew, to the primary where no standby is there.
    void moveTo(ReadFrom from);
    bool mayWaitForStandby(std::chrono::steady_clock::time_point since) const;
    // Where the primary's log ends now, in bytes; nothing while a transaction is open, whose answers are waited for elsewhere.
    std::optional<qint64> logEnd();

    void dropDatabase(); // ends the connection first; refused while somebody else is connected

    // Makes the wire free for a command of this reader (or nobody's): others read ahead, a lost connection is made
    // anew outside of transactions.
    void prepareFor(ResultReader *reader);
    ResultReader *reader() const { return m_reader; }

    // Runs a script to its end, not pipelined; throws its failure, or that of what was sent before.
    ResultPtr run(const QByteArray &script);
    ResultPtr runReady(const QByteArray &script); // the same wherever the wire is, without beforeReading
    // As PQgetResult, but a server that is silent for long is found out about: one that cannot be reached any more,
    // or that has lost the session, is a lost connection.
    ResultPtr nextResult();
    // For what was refused outside of transactions because somebody holds a lock.
    bool mayTryAgain(const EngineError &error, std::chrono::steady_clock::time_point since) const;
    // The result, or the error that it carries.
    ResultPtr checked(ResultPtr result);
    [[noreturn]] void fail(const pg_result *result); // also when the command could not even be sent
    EngineError errorOf(const pg_result *result);
    static bool
    endsSession(const pg_result *result); // the server's last words; the connection breaks a moment later

    QByteArray newStatementName() { return "s" + QByteArray::number(++m_statementCount); }
    void forgetStatement(const QByteArray &name) { m_stale.append(name); }

    // --- pipeline ---
    void enterPipeline(); // before a command is sent
    // One more command is under way; its answer goes to the taker, if somebody wants it. Reads answers when there are
    // many.
    void countSent(AnswerTaker *taker = nullptr);
    void countPrepared(const QByteArray &name); // one that prepares a statement
    // The statement could not be prepared after all. Told once.
    bool isMissing(const QByteArray &name) { return m_missing.remove(name); }
    void synchronize(); // what has been sent is one unit of work; what follows does not fail with it
    // The same for what nobody waits for. The thread's other connections do, before they ask something: so whatever
    // has been given back over one of them is free for all.
    void synchronizeUnawaited();
    void awaitUnawaited() noexcept;
    void finishSent(); // waits for all of it; throws the first failure that nobody else is told of
    // Of the command sent last, which this reader takes from the wire. Waits for all before it, and throws as
    // finishSent.
    void beginReading(ResultReader *reader);
    void endReading(); // after its last result
    // Who has no use for it any more; outside of a transaction the heir takes the answer.
    void forget(AnswerTaker *taker, AnswerTaker *heir = AnswerTaker::nobody());
    void leavePipeline(); // as finishSent; for what cannot be pipelined
    void abandonPipeline() noexcept; // waits and ignores failures

    // --- transaction ---
    bool inTransaction() const { return m_inTransaction; }
    void begin(); // goes with the first command
    void beginMoment(); // one that only reads, at once
    void commit(); // goes with what has been sent before it
    void rollback() noexcept;
    bool isTransactionFailed() const;
    void noteWriting() const; // by a single statement; that of a transaction is noted with its commit

private:
    struct ServerSession
    {
        int processId = 0;
        QByteArray begun; // process numbers come again
    };

    void connect();
    PostgresHandle openedWhereWanted();
    void connectAgain();
    void makeReady(ResultReader *reader);
    void connectPatiently();
    void refuseHandedOnSessions();
    void tell(bool isThere);
    void makeMarks();
    void sendCommit(bool isMarked, AnswerTaker &answer);
    void sendText(const QByteArray &statement, AnswerTaker *taker = nullptr);
    bool wasCommitted();
    bool isCommitted();
    ResultPtr finishCommand();
    void collect(size_t left);
    void takeResult(ResultPtr result);
    void throwFailure();
    void awaitOthers();
    void noteLoss();
    void loseAnswers();
    void awaitAnswer();
    void stayAlive(std::chrono::steady_clock::time_point since);
    bool isAnswered(std::chrono::milliseconds time) const;
    void beginSession();
    void endSession(const ServerSession &session);
    void dropStaleStatements();

    PostgresTarget m_target;
    PostgresHandle m_handle;
    ServerSession m_session; // the last one there was
    QByteArray m_marker; // by which commits of this link are told apart from others'
    bool m_canMark = false; // the server keeps the numbers of commits
    bool m_mayMakeMarks = false;
    bool m_writes = false; // the transaction may
    int m_commits = 0;
    bool m_isConnecting = false;
    bool m_isAwaiting = false; // and lets a screen live meanwhile
    bool m_isToldLost = false;
    int m_generation = 0;
    int m_statementCount = 0;
    QList<QByteArray> m_stale;
    ResultReader *m_reader = nullptr;
    struct Sent
    {
        enum Kind { Command, Preparation, Synchronization } kind;
        AnswerTaker *taker = nullptr;
        QByteArray prepares{};
    };
    std::deque<Sent> m_sent; // what is under way
    QSet<QByteArray> m_missing;
    std::optional<EngineError> m_failure;
    bool m_isBeginDue = false;
    bool m_isCommitting = false; // then all failures are the commit's
    std::optional<LockOwner> m_blocker; // whom the command under way has been waiting for
    bool m_inTransaction = false;
    std::optional<EngineError> m_unanswered; // of the last attempt to connect again, which waited in vain
    std::chrono::steady_clock::time_point m_unansweredAt;
    bool m_lost = false;
    bool m_lostInTransaction = false;
};

// Makes the database on the server; the account needs the right to. False where somebody else has just done so.
bool createRemoteDatabase(const PostgresTarget &target);

} // namespace Engine
