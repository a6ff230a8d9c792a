#pragma once

#include "engine/postgres/link.h"

namespace Engine {

// Finds out over a connection of its own what is the matter with a session of the server that gives no answer. It
// never waits itself: proceed() is called when its socket is ready.
class PostgresWatch
{
public:
    PostgresWatch(const PostgresTarget &target, const PostgresServer &server, int processId); // begins to connect
    PostgresWatch(const PostgresWatch &) = delete;
    PostgresWatch &operator=(const PostgresWatch &) = delete;

    int socket() const;
    bool wantsToWrite() const { return m_state == State::WantsToWrite; }
    void proceed();
    bool isOver() const { return m_state == State::Answered || m_state == State::Failed; }

    // Once it is over. A server that takes no more connections tells nothing, and the session may be alive.
    bool isIdle() const { return m_idle; } // the server knows nothing of the work that is waited for
    const std::optional<LockOwner> &blocker() const { return m_blocker; } // whose lock it waits for

private:
    enum class State { WantsToWrite, WantsToRead, Asked, Answered, Failed };
    void ask();
    void takeAnswer();

    PostgresHandle m_handle;
    int m_processId;
    State m_state = State::WantsToWrite;
    bool m_idle = false;
    std::optional<LockOwner> m_blocker;
};

} // namespace Engine
