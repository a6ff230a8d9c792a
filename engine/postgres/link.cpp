#include "engine/postgres/link.h"

#include "engine/postgres/error.h"
#include "engine/postgres/watch.h"
#include "engine/store/platform.h"

#include <algorithm>
#include <libpq-fe.h>
#include <QScopedValueRollback>
#include <QScopeGuard>
#include <utility>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

constexpr int staleLimit = 50;

// How long a server may be silent before it is asked over another connection, how long that may take, and how long
// an answer may be on its way that the server has given already. A command that takes its time is asked for again.
constexpr std::chrono::milliseconds silence{150};
constexpr std::chrono::seconds watchTime{10};
constexpr std::chrono::seconds answerOnItsWay{10};
constexpr std::chrono::seconds nextWatch{20};

// Until a screen is told that the server says nothing, and how often it may live then.
constexpr std::chrono::seconds longSilence{2};
constexpr std::chrono::milliseconds betweenSigns{100};

// What counts as a long wait for a connection, and how long none is tried after one that was in vain.
constexpr std::chrono::seconds longWait{5};
constexpr std::chrono::seconds pauseAfterVain{3};

QString field(const PGresult *result, int code) { return QString::fromUtf8(PQresultErrorField(result, code)); }

} // namespace

void ClearResult::operator()(pg_result *result) const { PQclear(result); }

void FinishConnection::operator()(pg_conn *handle) const { PQfinish(handle); }

PostgresLink::PostgresLink(PostgresTarget target)
    : m_target(std::move(target))
{
    connect();
}

// --- one command at a time ---------------------------------------------------------------------------------------

void PostgresLink::prepareFor(ResultReader *reader)
{
    makeReady(reader);
    if (beforeReading && !m_inTransaction)
        beforeReading();
}

void PostgresLink::makeReady(ResultReader *reader)
{
    if (m_isAwaiting) // what a screen does while a silent server is waited for
        throw connectionLost(location(), u"being waited for"_s);
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
        && !m_lostInTransaction && !m_isConnecting && !m_isAwaiting && (!mayReconnect || mayReconnect());
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
    if (m_isAwaiting)
        throw connectionLost(location(), u"being waited for"_s);
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
        const auto begun = Clock::now();
        while (!isAnswered({}) && !watch.isOver() && Clock::now() - begun < watchTime) {
            waitForEither(PQsocket(handle()), watch.socket(), watch.wantsToWrite(), betweenSigns);
            if (waitForSocket(watch.socket(), watch.wantsToWrite(), {}))
                watch.proceed();
            else
                stayAlive(begun);
        }
        if (watch.isOver())
            m_blocker = watch.blocker();
        const bool saysNothing = !watch.isOver() || (watch.isIdle() && !isAnswered(answerOnItsWay));
        if (saysNothing && !isAnswered({})) {
            noteLoss();
            throw connectionLost(location(), u"no answer"_s);
        }
        tell(true);
    } while (!isAnswered(nextWatch));
}

// A window that stood still would look as if it had broken down.
void PostgresLink::stayAlive(std::chrono::steady_clock::time_point since)
{
    if (!m_target.stayAlive || std::chrono::steady_clock::now() - since < longSilence)
        return;
    tell(false);
    QScopedValueRollback awaiting(m_isAwaiting, true);
    m_target.stayAlive();
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

bool PostgresLink::endsSession(const pg_result *result)
{
    const QByteArray severity(PQresultErrorField(result, PG_DIAG_SEVERITY_NONLOCALIZED));
    return severity == "FATAL" || severity == "PANIC";
}

bool PostgresLink::isLost() const { return m_lost || PQstatus(handle()) == CONNECTION_BAD; }

void PostgresLink::tell(bool isThere)
{
    if (std::exchange(m_isToldLost, !isThere) == isThere && m_target.told)
        m_target.told(isThere);
}

bool PostgresLink::hasEnded()
{
    if (m_isAwaiting)
        return false; // whoever waits finds out
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

} // namespace Engine
