#include "engine/store/attempts.h"

#include "engine/store/session.h"
#include "engine/values/error.h"

namespace Engine {

Attempts::Attempts(const Session &session)
    : Attempts(session.lockAttempts, [&session] { session.pause(); })
{
}

Attempts::Attempts(int most, std::function<void()> pause)
    : m_left(most)
    , m_pause(std::move(pause))
{
}

bool Attempts::again()
{
    if (--m_left <= 0)
        return false;
    m_pause();
    return true;
}

void tryWhileHeld(const std::function<void()> &step, const Retry &retry)
{
    for (;;) {
        try {
            return step();
        } catch (const EngineError &error) {
            if (!error.isHeldByOthers() || !retry || !retry(error))
                throw;
        }
    }
}

} // namespace Engine
