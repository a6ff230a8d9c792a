#pragma once

#include "engine/store/attempts.h"
#include "engine/store/database.h"
#include "engine/values/error.h"

#include <chrono>
#include <functional>
#include <vector>

namespace Engine {

// Where the statements that change something go while one step of a long run is being done.
class Writes
{
public:
    virtual ~Writes() = default;
    // Executes the statement as bound, in the order of the calls. A failure may come later.
    virtual void send(Statement &statement) = 0;
};

// Commits the writes of a long run in groups. A step of the run is what belongs together: a document with its lines,
// a row. A group ends between two steps and lasts about two seconds at most, so a crash leaves whole steps only.
//
// A failure keeps what was written before the failing statement, steps and the part of the last one, and then raises
// it. A file store executes a statement at once and undoes no other with it. A server gets statements without waiting
// for their answers, as pays there, and a failed one spoils its transaction: the group is rolled back and its steps
// are done once more, statement by statement, up to the one that fails. A step must therefore depend on nothing but
// the store and what forgetReads drops.
//
// Within a transaction of the caller the writes join that: nothing is committed here, and a failure undoes nothing.
class GroupedWrites final : private Writes
{
public:
    using Step = std::function<void(Writes &)>;

    // The rule is asked, outside of transactions, when somebody's lock on the server has kept a statement from being
    // done for long.
    explicit GroupedWrites(Database &database, std::function<void()> forgetReads = {}, Retry retry = {});
    ~GroupedWrites() override; // keeps what was applied, if finish() was not reached
    GroupedWrites(const GroupedWrites &) = delete;
    GroupedWrites &operator=(const GroupedWrites &) = delete;

    // A group must not last much longer than this: each one writes the index pages that it has touched to the log again,
    // so fewer are faster, but what a crash undoes grows with it.
    std::chrono::milliseconds groupTime{2000};
    // Where others wait to write meanwhile it ends as soon as this, and they get a moment.
    std::chrono::milliseconds awaitedGroupTime{300};

    void apply(Step step);
    void settle(); // everything applied has reached the store; before reading from it
    void finish(); // commits what is open

private:
    void send(Statement &statement) override;
    void sendGuarded(Statement &statement);
    void executeGuarded(Statement &statement);
    void begin();
    void commit();
    bool isGroupOver() const;
    void letOthersWrite() const;
    void keepApplied() noexcept;
    void guarded(const std::function<void()> &step);
    void replay();
    void replayStep(const Step &step);

    Connection &m_connection;
    const Session &m_session;
    const bool m_joined; // the caller's transaction
    const std::function<void()> m_forgetReads;
    const Retry m_retry;
    std::vector<Step> m_group; // applied since the last commit; kept when sending ahead
    bool m_replaying = false;
    bool m_asks = false; // about a lock that is in the way of the replay
    std::chrono::steady_clock::time_point m_begun;
};

// While it lives, the store has room for many writes: in a file a larger cache and rarer checkpoints.
class BulkWriting
{
public:
    explicit BulkWriting(Database &database);
    ~BulkWriting();
    BulkWriting(const BulkWriting &) = delete;
    BulkWriting &operator=(const BulkWriting &) = delete;

private:
    Connection &m_connection;
};

} // namespace Engine
