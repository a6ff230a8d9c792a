#pragma once

#include "engine/driver.h"

#include <chrono>
#include <functional>
#include <vector>

namespace Tallymere {

// Where the statements that change something go while a document is being posted.
class Writes
{
public:
    virtual ~Writes() = default;
    // Executes the statement as bound, in the order of the calls. A failure may come later.
    virtual void send(Engine::Statement &statement) = 0;
};

// Commits the writes of a posting run in groups. A group ends on a document boundary and lasts at most a quarter
// of a second, so a crash leaves whole documents only.
//
// A failure keeps what was written before the failing statement, documents and the part of the last one, and then
// raises it. A file store executes a statement at once and undoes no other with it. A server gets statements
// without waiting for their answers, and a failed one spoils its transaction: there the group is rolled back and
// its documents are applied once more, statement by statement, up to the one that fails. Applying must therefore
// depend on nothing but the store and what forgetReads drops.
class GroupedWrites final : private Writes
{
public:
    using Document = std::function<void(Writes &)>;

    // Ahead: statements are sent without waiting for the answer to the one before, as pays on a server.
    enum class Sending { Waiting, Ahead };

    GroupedWrites(Engine::Connection &connection, Sending sending, std::function<void()> forgetReads);
    ~GroupedWrites() override; // keeps what was applied, if finish() was not reached
    GroupedWrites(const GroupedWrites &) = delete;
    GroupedWrites &operator=(const GroupedWrites &) = delete;

    void apply(Document document);
    void settle(); // everything applied has reached the store; before reading from it
    void finish(); // commits what is open

private:
    void send(Engine::Statement &statement) override;
    void sendGuarded(Engine::Statement &statement);
    void begin();
    void commit();
    void keepApplied() noexcept;
    void guarded(const std::function<void()> &step);
    void replay();

    Engine::Connection &m_connection;
    const Sending m_sending;
    const std::function<void()> m_forgetReads;
    std::vector<Document> m_group; // applied since the last commit; kept when sending ahead
    bool m_replaying = false;
    std::chrono::steady_clock::time_point m_begun;
};

// While it lives, the file store has room for many writes: a larger cache and rarer checkpoints. Nothing on a
// server.
class BulkWriting
{
public:
    BulkWriting(Engine::Connection &connection, bool fileStore);
    ~BulkWriting();
    BulkWriting(const BulkWriting &) = delete;
    BulkWriting &operator=(const BulkWriting &) = delete;

private:
    Engine::Connection &m_connection;
    QString m_restore;
};

} // namespace Tallymere
