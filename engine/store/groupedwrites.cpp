#include "engine/store/groupedwrites.h"

#include "engine/store/session.h"
#include "engine/values/error.h"

#include <thread>
#include <utility>

using namespace Qt::StringLiterals;

namespace Engine {

GroupedWrites::GroupedWrites(Database &database, std::function<void()> forgetReads, Retry retry)
    : m_connection(database.connection())
    , m_session(database.session())
    , m_joined(m_connection.inTransaction())
    , m_forgetReads(std::move(forgetReads))
    , m_retry(std::move(retry))
{
}

GroupedWrites::~GroupedWrites() { keepApplied(); }

void GroupedWrites::apply(Step step)
{
    guarded([&] {
        begin();
        if (m_connection.sendsAhead() && !m_joined)
            m_group.push_back(step);
        step(*this);
        if (m_joined || !isGroupOver())
            return;
        commit();
        letOthersWrite();
    });
}

bool GroupedWrites::isGroupOver() const
{
    const auto lasted = std::chrono::steady_clock::now() - m_begun;
    return lasted >= groupTime || (lasted >= awaitedGroupTime && m_connection.isAwaited());
}

// A few of them: this run would come to no end otherwise where many write all the time.
void GroupedWrites::letOthersWrite() const
{
    constexpr std::chrono::milliseconds moment{100};
    constexpr std::chrono::milliseconds step{2};
    const auto since = std::chrono::steady_clock::now();
    while (m_connection.isAwaited() && std::chrono::steady_clock::now() - since < moment)
        std::this_thread::sleep_for(step);
}

void GroupedWrites::settle()
{
    if (m_connection.inTransaction())
        guarded([this] { m_connection.drain(); });
}

void GroupedWrites::finish()
{
    if (m_connection.inTransaction())
        guarded([this] { commit(); });
}

void GroupedWrites::guarded(const std::function<void()> &step)
{
    if (m_joined)
        return step();
    try {
        step();
    } catch (const EngineError &error) {
        // What a lost connection had not committed is gone, and the locks with it.
        if (!m_connection.sendsAhead() || error.isConnectionLost()) {
            keepApplied();
            throw;
        }
        replay();
    } catch (...) {
        if (!m_connection.sendsAhead()) {
            keepApplied();
            throw;
        }
        replay();
    }
}

void GroupedWrites::replay()
{
    m_connection.rollback();
    if (m_forgetReads)
        m_forgetReads();
    const std::vector<Step> steps = std::exchange(m_group, {});
    m_replaying = true;
    m_asks = m_retry != nullptr;
    try {
        m_connection.begin();
        for (const Step &step : steps)
            replayStep(step);
        m_connection.commit();
    } catch (...) {
        m_replaying = false;
        keepApplied();
        throw;
    }
    m_replaying = false; // whatever it was has passed
}

// Nothing is held while the question stands: the steps before are committed, and this one is done anew after it. When
// the answer is no, that leaves the part of it before the lock.
void GroupedWrites::replayStep(const Step &step)
{
    for (;;) {
        m_connection.execute(u"SAVEPOINT one_step"_s);
        try {
            step(*this);
            m_connection.execute(u"RELEASE SAVEPOINT one_step"_s);
            return;
        } catch (const EngineError &error) {
            if (error.code() != ErrorCode::Busy || !m_asks)
                throw;
            m_connection.execute(u"ROLLBACK TO SAVEPOINT one_step"_s);
            m_connection.commit();
            m_asks = m_retry(error);
        }
        if (m_forgetReads)
            m_forgetReads();
        m_connection.begin();
    }
}

void GroupedWrites::send(Statement &statement)
{
    if (m_replaying)
        sendGuarded(statement);
    else
        statement.send();
}

void GroupedWrites::sendGuarded(Statement &statement)
{
    m_connection.execute(u"SAVEPOINT one_write"_s);
    const auto since = std::chrono::steady_clock::now();
    for (;;) {
        try {
            executeGuarded(statement);
            break;
        } catch (const EngineError &error) {
            if (error.code() != ErrorCode::Busy || !m_session.mayTryAgain(since))
                throw;
        }
    }
    m_connection.execute(u"RELEASE SAVEPOINT one_write"_s);
}

// Leaves the transaction usable after a failure.
void GroupedWrites::executeGuarded(Statement &statement)
{
    try {
        statement.execute();
    } catch (const EngineError &error) {
        if (!error.isConnectionLost())
            m_connection.execute(u"ROLLBACK TO SAVEPOINT one_write"_s);
        throw;
    }
}

void GroupedWrites::begin()
{
    if (m_connection.inTransaction())
        return;
    m_connection.begin();
    m_begun = std::chrono::steady_clock::now();
}

void GroupedWrites::commit()
{
    m_connection.drain();
    if (!m_joined)
        m_connection.commit();
    m_group.clear();
}

void GroupedWrites::keepApplied() noexcept
{
    if (m_joined)
        return;
    // A store that has rolled back by itself has left the last committed group; a lost connection is free again once it
    // is told that nobody goes on with the transaction.
    if (!m_connection.inTransaction())
        return m_connection.rollback();
    try {
        m_connection.drain();
        m_connection.commit();
    } catch (...) {
        // The failure that led here is the one to be told.
        m_connection.rollback();
    }
}

BulkWriting::BulkWriting(Database &database)
    : m_connection(database.connection())
{
    m_connection.setBulk(true);
}

BulkWriting::~BulkWriting()
{
    try {
        m_connection.setBulk(false);
    } catch (const EngineError &) {
        // Settings of this connection only; the run's own outcome matters more.
    }
}

} // namespace Engine
