#pragma once

#include "engine/postgres/link.h"
#include "engine/store/readorigin.h"

namespace Engine {

// Sees to it that a link that only reads does so from a standby server, and that nothing is missing there that this program
// has written: it waits until the standby has replayed the log of the primary as far as that. Where that takes too long,
// where no standby is there or the one that was read from is none any more, the link is moved to the primary.
class StandbyReading
{
public:
    // The link wants a standby (PostgresTarget::wantsStandby) and outlives the object. The primary is asked where its log
    // ends, on the same thread.
    StandbyReading(PostgresLink &link, std::shared_ptr<PostgresLink> primary);

    // Looks for a standby where the link is on none, and waits for it: a moment for all that there is by now, longer for
    // what this program has written.
    void renew();
    // Before each statement that is not of a transaction, and before each transaction. Asks nobody unless something has been written or the link was
    // made anew, and holds a screen up for 0.4 seconds at most.
    void keepUp();
    // The standby has refused a statement ("canceling statement due to conflict with recovery").
    void giveUp() { leave(ReadOrigin::Reason::Failed); }

    const ReadOrigin &origin() const { return m_origin; }
    const std::shared_ptr<PostgresLink> &primary() const { return m_primary; }

private:
    enum class Patience { OfAScreen, OfARun };
    struct State
    {
        bool follows = false; // it is a standby, and its primary sends to it
        qint64 replayed = 0;
        std::optional<std::chrono::milliseconds> sinceCommit; // none: it has replayed no commit since its start
    };

    void reach(Patience patience);
    void await(qint64 own, qint64 all, Patience patience);
    bool pause(std::chrono::steady_clock::time_point since, Patience patience);
    State state();
    void take(const State &state, bool hasAll);
    void leave(ReadOrigin::Reason reason);

    PostgresLink &m_link;
    const std::shared_ptr<PostgresLink> m_primary;
    quint64 m_seenWrites = 0;
    int m_seenGeneration = 0;
    bool m_isPausing = false;
    QDateTime m_asked; // when the primary was
    QDateTime m_complete; // when the standby of that generation of the link had everything
    int m_completeGeneration = 0;
    ReadOrigin m_origin;
};

} // namespace Engine
