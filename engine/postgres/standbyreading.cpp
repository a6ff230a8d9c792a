#include "engine/postgres/standbyreading.h"

#include "engine/postgres/ownwrites.h"

#include <algorithm>
#include <libpq-fe.h>
#include <QScopeGuard>
#include <thread>

namespace Engine {

namespace {

using Clock = std::chrono::steady_clock;
using Reason = ReadOrigin::Reason;

// For all that there is: as long as a standby takes that has nothing else to do. For what this program has written: as long
// as nobody minds, without the screen; with it, Session::standbyWait.
constexpr std::chrono::milliseconds waitForAll{50};
constexpr std::chrono::milliseconds waitOfAScreen{400};
constexpr std::chrono::milliseconds betweenLooks{5};

} // namespace

StandbyReading::StandbyReading(PostgresLink &link, std::shared_ptr<PostgresLink> primary)
    : m_link(link)
    , m_primary(std::move(primary))
{
}

void StandbyReading::renew()
{
    const bool isFirst = m_origin.reason == Reason::NotWanted; // then it has just been looked for
    if (!isFirst && !m_link.isOnStandby()) {
        m_origin.reason = Reason::NoneThere;
        m_link.moveTo(ReadFrom::Standby); // where locks of open tables are asked for, which finds it behind at once
        if (m_origin.reason == Reason::Behind)
            return;
    }
    reach(Patience::OfARun);
}

void StandbyReading::keepUp()
{
    if (!m_link.isOnStandby()) {
        if (m_origin.isStandby()) // the link has just been made anew
            leave(Reason::NoneThere);
        return;
    }
    if (m_isPausing) // what a screen reads meanwhile does not wait as well
        return leave(Reason::Behind);
    if (m_seenWrites != OwnWrites::count() || m_seenGeneration != m_link.generation())
        reach(Patience::OfAScreen);
}

void StandbyReading::reach(Patience patience)
{
    if (!m_link.isOnStandby())
        return leave(Reason::NoneThere);
    const quint64 writes = OwnWrites::count();
    m_asked = QDateTime::currentDateTime();
    try {
        const std::optional<qint64> end = m_primary->logEnd();
        if (!end)
            return leave(Reason::Behind);
        await(OwnWrites::position(m_link.location(), writes, *end), *end, patience);
        m_seenWrites = writes;
        m_seenGeneration = m_link.generation();
    } catch (
        const EngineError &) { // of either server; what the primary suffers from, it tells those who read from it
        leave(Reason::NoneThere);
    }
}

void StandbyReading::await(qint64 own, qint64 all, Patience patience)
{
    const Clock::time_point since = Clock::now();
    do {
        const State now = state();
        if (!now.follows)
            return leave(Reason::NoneThere);
        const bool hasAll = now.replayed >= all;
        const bool hasOwn = now.replayed >= own && now.sinceCommit;
        if (hasAll || (hasOwn && Clock::now() - since >= waitForAll))
            return take(now, hasAll);
    } while (pause(since, patience) && m_link.isOnStandby());
    leave(Reason::Behind);
}

bool StandbyReading::pause(Clock::time_point since, Patience patience)
{
    const auto waited = Clock::now() - since;
    if (waited < (patience == Patience::OfARun ? waitForAll : waitOfAScreen)) {
        std::this_thread::sleep_for(betweenLooks);
        return true;
    }
    if (patience == Patience::OfAScreen)
        return false;
    m_isPausing = true;
    const auto over = qScopeGuard([this] { m_isPausing = false; });
    return m_link.mayWaitForStandby(since);
}

// The log is sent to a standby that has been cut off as little as to one that has been left behind by a change of the
// primary; what it has replayed may be everything that it has got, and old.
StandbyReading::State StandbyReading::state()
{
    const ResultPtr found = m_link.runReady(
        "SELECT pg_is_in_recovery() AND EXISTS (SELECT FROM pg_stat_wal_receiver), "
        "coalesce(CAST(pg_last_wal_replay_lsn() - '0/0' AS bigint), 0), "
        "CAST(1000 * extract(epoch FROM clock_timestamp() - pg_last_xact_replay_timestamp()) AS bigint)");
    State state;
    state.follows = qstrcmp(PQgetvalue(found.get(), 0, 0), "t") == 0;
    state.replayed = QByteArray(PQgetvalue(found.get(), 0, 1)).toLongLong();
    if (PQgetisnull(found.get(), 0, 2) == 0) // clocks of two machines may differ
        state.sinceCommit =
            std::chrono::milliseconds(std::max(QByteArray(PQgetvalue(found.get(), 0, 2)).toLongLong(), 0LL));
    return state;
}

// What had everything once is not older than that, however long ago the last commit was.
void StandbyReading::take(const State &state, bool hasAll)
{
    if (hasAll)
        m_complete = m_asked;
    else if (m_completeGeneration != m_link.generation())
        m_complete = {};
    m_completeGeneration = m_link.generation();
    m_origin = {.reason = Reason::Standby, .server = serverOf(m_link.handle()).host, .asOf = m_asked};
    if (hasAll)
        return;
    const QDateTime now = QDateTime::currentDateTime();
    const QDateTime commit = now.addMSecs(-state.sinceCommit->count());
    m_origin.asOf = m_complete.isValid() ? std::max(commit, m_complete) : commit;
    m_origin.behind = std::chrono::milliseconds(m_origin.asOf.msecsTo(now));
}

void StandbyReading::leave(Reason reason)
{
    if (m_link.wantsStandby()) // also where that has been lost, or the next statement would look for one
        m_link.moveTo(ReadFrom::Primary);
    m_origin = {.reason = reason, .server = {}, .asOf = QDateTime::currentDateTime()};
}

} // namespace Engine
