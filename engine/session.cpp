#include "engine/session.h"

#include <thread>

namespace Engine {

void Session::start()
{
    if (m_started)
        return;
    m_started = true;
    if (onStartup)
        onStartup(*this);
}

void Session::pause() const
{
    if (waitFor)
        waitFor(lockPause);
    else
        std::this_thread::sleep_for(lockPause);
}

} // namespace Engine
