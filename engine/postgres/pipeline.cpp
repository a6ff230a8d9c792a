#include "engine/postgres/error.h"
#include "engine/postgres/link.h"
#include "engine/postgres/ownwrites.h"

#include <libpq-fe.h>
#include <utility>

using namespace Qt::StringLiterals;

// Commands that are under way together, and who takes their answers.

namespace Engine {

namespace {

// Commands under way before the server is asked to answer, and before answers are read. The latter bounds what
// waits in the buffers, so that neither side ever waits for the other with its own buffer full.
constexpr int flushEvery = 32;
constexpr int mostPending = 256;

} // namespace

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

PostgresLink::~PostgresLink() { unawaited().removeAll(this); }

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
        if (m_sent.empty() || isLost() || m_reader || m_isAwaiting) // who reads has had all answers before
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

} // namespace Engine
