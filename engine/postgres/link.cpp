#include "engine/postgres/link.h"

#include "engine/postgres/error.h"
#include "engine/postgres/ownwrites.h"
#include "engine/postgres/watch.h"
#include "engine/store/platform.h"

#include <algorithm>
#include <libpq-fe.h>
#include <QScopedValueRollback>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

// Commands under way before the server is asked to answer, and before answers are read. The latter bounds what
// waits in the buffers, so that neither side ever waits for the other with its own buffer full.
constexpr int flushEvery = 32;
constexpr int mostPending = 256;
constexpr int staleLimit = 50;

// How long a server may be silent before it is asked over another connection, how long that may take, and how long
// an answer may be on its way that the server has given already. A command that takes its time is asked for again.
constexpr std::chrono::milliseconds silence{150};
constexpr std::chrono::seconds watchTime{10};
constexpr std::chrono::seconds answerOnItsWay{10};
constexpr std::chrono::seconds nextWatch{20};

// What counts as a long wait for a connection, and how long none is tried after one that was in vain.
constexpr std::chrono::seconds longWait{5};
constexpr std::chrono::seconds pauseAfterVain{3};

// The server's last words to a session that it ends; the connection itself breaks a moment later.
bool endsSession(const PGresult *result)
{
    const QByteArray severity(PQresultErrorField(result, PG_DIAG_SEVERITY_NONLOCALIZED));
    return severity == "FATAL" || severity == "PANIC";
}

QString field(const PGresult *result, int code) { return QString::fromUtf8(PQresultErrorField(result, code)); }

} // namespace

void ClearResult::operator()(pg_result *result) const { PQclear(result); }

void FinishConnection::operator()(pg_conn *handle) const { PQfinish(handle); }

// Without a state, so threads may share it.
AnswerTaker *AnswerTaker::nobody()
{
    class Nobody final : public AnswerTaker
    {
        void takeAnswer(ResultPtr) override { }
        void endAnswer() override { }
        void loseAnswer() override { }
    };
    static Nobody taker;
    return &taker;
}

AnswerTaker *AnswerTaker::writing()
{
    class Writing final : public AnswerTaker
    {
        void takeAnswer(ResultPtr) override { }
        void endAnswer() override { OwnWrites::note(); }
        void loseAnswer() override { OwnWrites::note(); } // it may have been done
    };
    static Writing taker;
    return &taker;
}

namespace {

// Those of this thread with something under way that nobody waits for.
QList<PostgresLink *> &unawaited()
{
    thread_local QList<PostgresLink *> links;
    return links;
}

} // namespace

PostgresLink::PostgresLink(PostgresTarget target)
    : m_target(std::move(target))
{
    connect();
}

PostgresLink::~PostgresLink() { unawaited().removeAll(this); }

// --- one command at a time ---------------------------------------------------------------------------------------

void PostgresLink::prepareFor(ResultReader *reader)
{
    makeReady(reader);
    if (beforeReading && !m_inTransaction)
        beforeReading();
}

void PostgresLink::makeReady(ResultReader *reader)
{
    if (m_reader && m_reader != reader)
        m_reader->readAhead();
    m_blocker.reset();
    if (m_lostInTransaction)
        throw connectionLost(location(), u"lost within a transaction"_s);
    if (!isLost()) {
        dropStaleStatements();
        return;
    }
    if (mayReconnect && !mayReconnect())
        throw connectionLost(location(), u"not connected again while locks were held"_s);
    if (m_isConnecting) // what a screen does while that is waited for
        throw connectionLost(location(), u"being connected again"_s);
    connectAgain();
    if (reconnected)
        reconnected();
}

// A machine that does not answer is not waited for again by everything that a screen does after it was told.
void PostgresLink::connectAgain()
{
    const auto begun = std::chrono::steady_clock::now();
    if (m_unanswered && begun - m_unansweredAt < pauseAfterVain)
        throw EngineError(*m_unanswered);
    m_unanswered.reset();
    try {
        connectPatiently();
    } catch (const EngineError &error) {
        const auto now = std::chrono::steady_clock::now();
        if (now - begun >= longWait) {
            m_unanswered = error;
            m_unansweredAt = now;
        }
        throw;
    }
}

// While a cluster makes up its mind none of its servers can be written to.
void PostgresLink::connectPatiently()
{
    m_isConnecting = true;
    const auto over = qScopeGuard([this] { m_isConnecting = false; });
    const auto since = std::chrono::steady_clock::now();
    for (;;) {
        try {
            return connect();
        } catch (const EngineError &error) {
            const bool mayPass = error.isConnectionLost() || error.code() == ErrorCode::CannotOpen;
            if (!m_target.hasSeveral() || !mayPass || isMissingDatabase(error) || !m_target.mayWaitForServer
                || !m_target.mayWaitForServer(since, m_target.serverWait))
                throw;
        }
    }
}

void PostgresLink::moveTo(ReadFrom from)
{
    if (m_reader && !isLost())
        m_reader->readAhead();
    abandonPipeline(); // what has been asked before is answered there
    m_target.wantsStandby = from == ReadFrom::Standby;
    connect();
    if (reconnected)
        reconnected();
}

bool PostgresLink::mayWaitForStandby(std::chrono::steady_clock::time_point since) const
{
    return m_target.mayWaitForServer && m_target.mayWaitForServer(since, m_target.standbyWait);
}

std::optional<qint64> PostgresLink::logEnd()
{
    if (m_inTransaction || m_lostInTransaction)
        return std::nullopt;
    // What is on its disk, where a commit is answered when it is there: the rest is not sent to standbys either.
    const ResultPtr end = runReady("SELECT CAST(CASE current_setting('synchronous_commit') WHEN 'off' "
                                   "THEN pg_current_wal_insert_lsn() ELSE pg_current_wal_flush_lsn() END "
                                   "- '0/0' AS bigint)");
    return QByteArray(PQgetvalue(end.get(), 0, 0)).toLongLong();
}

bool PostgresLink::mayReadAgain(const EngineError &error) const
{
    return error.code() == ErrorCode::ConnectionLost && m_target.mayWaitForServer && !m_inTransaction
        && !m_lostInTransaction && !m_isConnecting && (!mayReconnect || mayReconnect());
}

// One that does not exist any more fails for itself alone.
void PostgresLink::dropStaleStatements()
{
    if (m_stale.size() < staleLimit || m_inTransaction)
        return;
    enterPipeline();
    for (const QByteArray &name : std::exchange(m_stale, {})) {
        sendText("DEALLOCATE " + name, AnswerTaker::nobody());
        synchronize();
    }
}

ResultPtr PostgresLink::run(const QByteArray &script)
{
    awaitOthers();
    leavePipeline();
    if (PQsendQuery(handle(), script.constData()) != 1)
        fail(nullptr);
    return finishCommand();
}

ResultPtr PostgresLink::runReady(const QByteArray &script)
{
    makeReady(nullptr);
    return run(script);
}

ResultPtr PostgresLink::finishCommand()
{
    ResultPtr last;
    while (ResultPtr result = nextResult())
        last = std::move(result);
    return checked(std::move(last));
}

bool PostgresLink::mayTryAgain(const EngineError &error, std::chrono::steady_clock::time_point since) const
{
    return error.code() == ErrorCode::Busy && !m_inTransaction && m_target.mayTryAgain
        && m_target.mayTryAgain(since);
}

// --- waiting for the server -------------------------------------------------------------------------------------

ResultPtr PostgresLink::nextResult()
{
    while (PQisBusy(handle())) {
        if (!isAnswered(silence))
            awaitAnswer();
        if (PQconsumeInput(handle()) != 1)
            break; // the result tells what has happened
    }
    return ResultPtr(PQgetResult(handle()));
}

bool PostgresLink::isAnswered(std::chrono::milliseconds time) const
{
    return waitForSocket(PQsocket(handle()), false, time);
}

// The machine may be gone, or whoever passes on what it says; then nothing ever comes, not even a failure.
void PostgresLink::awaitAnswer()
{
    using Clock = std::chrono::steady_clock;
    do {
        PostgresWatch watch(m_target, serverOf(handle()), m_session.processId);
        const auto deadline = Clock::now() + watchTime;
        while (!watch.isOver() && Clock::now() < deadline) {
            const Clock::duration left = std::max(deadline - Clock::now(), Clock::duration::zero());
            waitForEither(PQsocket(handle()), watch.socket(), watch.wantsToWrite(),
                          std::chrono::duration_cast<std::chrono::milliseconds>(left));
            if (isAnswered({}))
                return;
            if (waitForSocket(watch.socket(), watch.wantsToWrite(), {}))
                watch.proceed();
        }
        m_blocker = watch.blocker();
        const bool gone = !watch.isOver() || (watch.isIdle() && !isAnswered(answerOnItsWay));
        if (gone) {
            noteLoss();
            throw connectionLost(location(), u"no answer"_s);
        }
    } while (!isAnswered(nextWatch));
}

ResultPtr PostgresLink::checked(ResultPtr result)
{
    const ExecStatusType status = PQresultStatus(result.get());
    if (!result || status == PGRES_FATAL_ERROR || status == PGRES_BAD_RESPONSE || status == PGRES_PIPELINE_ABORTED)
        fail(result.get());
    return result;
}

void PostgresLink::fail(const pg_result *result) { throw errorOf(result); }

EngineError PostgresLink::errorOf(const pg_result *result)
{
    if (isLost() || endsSession(result)) {
        noteLoss();
        return connectionLost(location(), QString::fromUtf8(PQerrorMessage(handle())).trimmed());
    }
    if (PQresultStatus(result) == PGRES_PIPELINE_ABORTED)
        return EngineError(ErrorCode::General, Texts::tr("An earlier step of the same change has failed."));
    const QByteArray sqlState(PQresultErrorField(result, PG_DIAG_SQLSTATE));
    const QString words =
        result ? field(result, PG_DIAG_MESSAGE_PRIMARY) : QString::fromUtf8(PQerrorMessage(handle())).trimmed();
    const QString holder = m_blocker ? " ("_L1 + m_blocker->description() + u')' : QString();
    return postgresError(sqlState, words, field(result, PG_DIAG_MESSAGE_DETAIL), location(), holder);
}

bool PostgresLink::isLost() const { return m_lost || PQstatus(handle()) == CONNECTION_BAD; }

void PostgresLink::tell(bool isThere)
{
    if (std::exchange(m_isToldLost, !isThere) == isThere && m_target.told)
        m_target.told(isThere);
}

bool PostgresLink::hasEnded()
{
    constexpr int mostLooks = 3; // its last words, and the end itself
    for (int look = 0; look < mostLooks && !isLost() && !m_reader && isAnswered({}); ++look) {
        if (PQconsumeInput(handle()) != 1)
            break;
        PQisBusy(handle()); // takes up what has come; answers stay for those who wait for them
    }
    if (isLost())
        noteLoss();
    return isLost();
}

void PostgresLink::noteLoss()
{
    m_lost = true;
    tell(false);
    m_lostInTransaction = m_lostInTransaction || m_inTransaction;
    m_inTransaction = false;
    m_isBeginDue = false;
    m_reader = nullptr;
    loseAnswers();
}

void PostgresLink::loseAnswers()
{
    for (const Sent &sent : std::exchange(m_sent, {}))
        if (sent.taker)
            sent.taker->loseAnswer();
}

// --- pipeline ---------------------------------------------------------------------------------------------------

void PostgresLink::enterPipeline()
{
    awaitOthers();
    if (PQpipelineStatus(handle()) == PQ_PIPELINE_OFF && PQenterPipelineMode(handle()) != 1)
        fail(nullptr);
    if (std::exchange(m_isBeginDue, false))
        sendText("BEGIN");
}

void PostgresLink::sendText(const QByteArray &statement, AnswerTaker *taker)
{
    if (PQsendQueryParams(handle(), statement.constData(), 0, nullptr, nullptr, nullptr, nullptr, 0) != 1)
        fail(nullptr);
    countSent(taker);
}

void PostgresLink::countSent(AnswerTaker *taker)
{
    m_sent.push_back({Sent::Command, taker});
    if (m_sent.size() % flushEvery == 0 && (PQsendFlushRequest(handle()) != 1 || PQflush(handle()) < 0))
        fail(nullptr);
    if (m_sent.size() < mostPending)
        return;
    collect(mostPending / 2);
    if (m_failure)
        finishSent(); // throws it
}

void PostgresLink::countPrepared(const QByteArray &name) { m_sent.push_back({Sent::Preparation, nullptr, name}); }

void PostgresLink::synchronize()
{
    if (PQpipelineSync(handle()) != 1)
        fail(nullptr);
    m_sent.push_back({Sent::Synchronization});
}

void PostgresLink::synchronizeUnawaited()
{
    synchronize();
    if (!unawaited().contains(this))
        unawaited().append(this);
}

void PostgresLink::awaitUnawaited() noexcept
{
    try {
        unawaited().removeAll(this);
        if (m_sent.empty() || isLost() || m_reader) // who reads has had all answers before
            return;
        if (m_sent.back().kind != Sent::Synchronization)
            synchronize(); // else the server keeps its answers
        collect(0);
    } catch (const EngineError &) { // it is lost, which its next command tells
    }
}

void PostgresLink::awaitOthers()
{
    const QList<PostgresLink *> links = unawaited();
    for (PostgresLink *link : links)
        if (link != this)
            link->awaitUnawaited();
}

// Reads the answers to what was sent first, until only so much is under way.
void PostgresLink::collect(size_t left)
{
    while (m_sent.size() > left)
        takeResult(nextResult());
}

// One more of what was sent first; without one, that has been all of it. Keeps the first failure that has no taker.
void PostgresLink::takeResult(ResultPtr result)
{
    const ExecStatusType status = PQresultStatus(result.get());
    const bool failed = result && (status == PGRES_FATAL_ERROR || status == PGRES_PIPELINE_ABORTED);
    if (isLost() ? !result || failed : endsSession(result.get())) {
        const EngineError loss = errorOf(result.get());
        if (!m_failure)
            m_failure = loss;
        return;
    }
    const Sent &front = m_sent.front();
    if (!result || status == PGRES_PIPELINE_SYNC) {
        AnswerTaker *const taker = front.taker;
        m_sent.pop_front();
        if (taker)
            taker->endAnswer();
        return;
    }
    if (failed && !front.prepares.isEmpty())
        m_missing.insert(front.prepares);
    if (failed && !m_failure && (!front.taker || m_isCommitting))
        m_failure = errorOf(result.get());
    if (front.taker)
        front.taker->takeAnswer(std::move(result));
}

void PostgresLink::throwFailure()
{
    if (!m_failure)
        return;
    const EngineError failure = *m_failure;
    m_failure.reset();
    throw failure;
}

void PostgresLink::finishSent()
{
    if (!m_sent.empty() && m_sent.back().kind != Sent::Synchronization)
        synchronize();
    collect(0);
    throwFailure();
}

void PostgresLink::beginReading(ResultReader *reader)
{
    constexpr size_t command = 1;
    synchronize();
    collect(command + 1);
    if (m_failure)
        finishSent();
    if (!beforeReading || m_inTransaction) // else it can be done again elsewhere as long as no row is given
        PQsetSingleRowMode(handle());
    m_reader = reader;
}

void PostgresLink::endReading()
{
    m_reader = nullptr;
    if (!m_sent.empty())
        m_sent.pop_front();
    collect(0);
}

void PostgresLink::forget(AnswerTaker *taker, AnswerTaker *heir)
{
    for (Sent &sent : m_sent)
        if (sent.taker == taker)
            sent.taker = m_inTransaction ? nullptr : heir;
    if (!m_sent.empty() && !unawaited().contains(this))
        unawaited().append(this);
}

void PostgresLink::leavePipeline()
{
    if (isLost())
        return;
    if (m_isBeginDue)
        enterPipeline();
    if (PQpipelineStatus(handle()) == PQ_PIPELINE_OFF)
        return;
    try {
        finishSent();
    } catch (const EngineError &) {
        PQexitPipelineMode(handle());
        throw;
    }
    PQexitPipelineMode(handle());
}

void PostgresLink::abandonPipeline() noexcept
{
    try {
        leavePipeline();
    } catch (const EngineError &) {
        // the transaction that these commands belonged to is being given up
    }
}

// --- transaction ------------------------------------------------------------------------------------------------

void PostgresLink::begin()
{
    prepareFor(nullptr);
    if (hasEnded()) // so that this is told while nothing is under way yet
        throw connectionLost(location(), u"ended by the server"_s);
    m_writes = true;
    if (m_mayMakeMarks)
        makeMarks();
    m_isBeginDue = true;
    m_inTransaction = true;
}

// The moment is that of the first statement.
void PostgresLink::beginMoment()
{
    prepareFor(nullptr);
    m_writes = false;
    run("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY; SELECT 1");
    m_inTransaction = true;
}

namespace {

class CommitAnswer final : public AnswerTaker
{
public:
    void takeAnswer(ResultPtr answer) override
    {
        isDone = PQresultStatus(answer.get()) == PGRES_COMMAND_OK;
        isUndone = isDone && qstrcmp(PQcmdStatus(answer.get()), "ROLLBACK") == 0;
    }
    void endAnswer() override { }
    void loseAnswer() override { }

    bool isDone = false;
    bool isUndone = false;
};

} // namespace

// Where something sent before has failed, the server passes over the commit, or undoes everything by it.
void PostgresLink::commit()
{
    prepareFor(nullptr);
    if (std::exchange(m_isBeginDue, false)) { // nothing has been done in it
        m_inTransaction = false;
        return;
    }
    const bool writes = m_writes && !isTransactionFailed();
    const bool isMarked = writes && m_canMark;
    const auto noted = qScopeGuard([writes] {
        if (writes)
            OwnWrites::note();
    });
    CommitAnswer answer;
    try {
        const QScopedValueRollback committing(m_isCommitting, true);
        sendCommit(isMarked, answer);
        finishSent();
    } catch (const EngineError &error) {
        forget(&answer);
        m_inTransaction = m_inTransaction && !answer.isDone;
        if (error.code() != ErrorCode::ConnectionLost || !writes)
            throw;
        if (!isMarked)
            throw answerLost(location(), error.driverText());
        if (!wasCommitted())
            throw;
        m_lostInTransaction = false;
        return;
    }
    m_inTransaction = false;
    if (answer.isUndone)
        raise(ErrorCode::General,
              Texts::tr("An earlier step of the same change has failed; the "
                        "changes were undone."));
}

void PostgresLink::noteWriting() const
{
    if (!m_inTransaction)
        OwnWrites::note();
}

void PostgresLink::rollback() noexcept
{
    m_lostInTransaction = false;
    if (std::exchange(m_isBeginDue, false) || !m_inTransaction || isLost()) {
        m_inTransaction = false;
        return;
    }
    try {
        if (m_reader)
            m_reader->readAhead();
    } catch (const EngineError &) {
        m_reader = nullptr;
    }
    abandonPipeline();
    m_inTransaction = false;
    try {
        if (!isLost())
            run("ROLLBACK");
    } catch (const EngineError &) {
        // a connection that is lost has undone it
    }
}

// --- commits whose answer is lost -------------------------------------------------------------------------------

// Each link has a row there with the number of its last commit, which is written with it. The server's own numbers of
// transactions would not do: those that had not reached the standby are given to others by it.
void PostgresLink::makeMarks()
{
    m_mayMakeMarks = false;
    try {
        run("CREATE SCHEMA IF NOT EXISTS tallymere; "
            "CREATE TABLE IF NOT EXISTS tallymere.commits (marker text PRIMARY KEY, number integer NOT NULL, "
            "at timestamp with time zone NOT NULL); "
            "GRANT USAGE ON SCHEMA tallymere TO PUBLIC; "
            "GRANT SELECT, INSERT, UPDATE, DELETE ON tallymere.commits TO PUBLIC");
    } catch (const EngineError &) {
        if (isLost())
            throw; // otherwise somebody else is just making it
    }
    const ResultPtr made = run("SELECT to_regclass('tallymere.commits') IS NOT NULL");
    m_canMark = qstrcmp(PQgetvalue(made.get(), 0, 0), "t") == 0;
}

// A transaction that has written nothing leaves no number either. Rows of links that are no more go after a day.
void PostgresLink::sendCommit(bool isMarked, AnswerTaker &answer)
{
    enterPipeline();
    if (isMarked && m_commits++ == 0)
        sendText("DELETE FROM tallymere.commits WHERE marker IN (SELECT marker FROM tallymere.commits "
                 "WHERE at < now() - interval '1 day' AND txid_current_if_assigned() IS NOT NULL "
                 "FOR UPDATE SKIP LOCKED)");
    if (isMarked)
        sendText("INSERT INTO tallymere.commits (marker, number, at) SELECT '" + m_marker + "', "
                 + QByteArray::number(m_commits)
                 + ", now() WHERE txid_current_if_assigned() IS NOT NULL "
                   "ON CONFLICT (marker) DO UPDATE SET number = excluded.number, at = excluded.at");
    sendText("COMMIT", &answer);
}

bool PostgresLink::wasCommitted()
{
    const auto since = std::chrono::steady_clock::now();
    for (;;) {
        try {
            return isCommitted();
        } catch (const EngineError &error) {
            if (!m_target.mayWaitForServer || !m_target.mayWaitForServer(since, m_target.answerWait))
                throw answerLost(location(), error.driverText());
        }
    }
}

// The former session must not come to its commit later. What has been found is written once more, so that the answer is as
// safe as the commit's own would have been: on this server and where it is copied to.
bool PostgresLink::isCommitted()
{
    PostgresTarget target = m_target;
    target.told = {};
    PostgresLink other(target);
    other.endSession(m_session);
    const ResultPtr lives =
        other.run("SELECT 1 FROM pg_stat_activity WHERE pid = " + QByteArray::number(m_session.processId)
                  + " AND backend_start = '" + m_session.begun + "'");
    if (PQntuples(lives.get()) > 0)
        raise(ErrorCode::Busy, Texts::tr("The former connection has not ended yet."));
    const ResultPtr found =
        other.run("INSERT INTO tallymere.commits VALUES ('" + m_marker
                  + "', 0, now()) ON CONFLICT (marker) DO UPDATE SET at = now() RETURNING number");
    return QByteArray(PQgetvalue(found.get(), 0, 0)).toInt() == m_commits;
}

bool PostgresLink::isTransactionFailed() const { return PQtransactionStatus(handle()) == PQTRANS_INERROR; }

} // namespace Engine
