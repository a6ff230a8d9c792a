#pragma once

#include <functional>

namespace Engine {

class EngineError;
class Session;

// How often something is tried that somebody else may hold, and what is done between two attempts.
class Attempts
{
public:
    explicit Attempts(const Session &session); // as often as record locks are tried, with the session's pauses
    Attempts(int most, std::function<void()> pause);

    bool again(); // pauses; false, at once, when that was the last attempt

private:
    int m_left;
    std::function<void()> m_pause;
};

// Asked after a failure for somebody else's lock: true to try once more.
using Retry = std::function<bool(const EngineError &)>;

// Does the step, and does it again while somebody else's lock is in the way and the rule allows it. Then, and at any
// other failure, the step's error is thrown. Without a rule the first failure is the last.
void tryWhileHeld(const std::function<void()> &step, const Retry &retry);

} // namespace Engine
