#include "engine/postgres/error.h"
#include "engine/postgres/link.h"
#include "engine/postgres/ownwrites.h"

#include <libpq-fe.h>
#include <QScopedValueRollback>
#include <QScopeGuard>
#include <utility>

using namespace Qt::StringLiterals;

namespace Engine {

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
