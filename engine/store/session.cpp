#include "engine/store/session.h"

#include <QScopeGuard>
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

void Session::pause(std::chrono::milliseconds time) const
{
    const bool within = std::exchange(m_pausing, true);
    const auto over = qScopeGuard([&] { m_pausing = within; });
    if (waitFor)
        waitFor(time);
    else
        std::this_thread::sleep_for(time);
}

void Session::stayAlive() const
{
    constexpr std::chrono::milliseconds moment{20};
    if (waitFor && !m_pausing)
        pause(moment);
}

bool Session::mayTryAgain(std::chrono::steady_clock::time_point since) const
{
    return mayTryAgain(since, lockAttempts * lockPause);
}

bool Session::mayTryAgain(std::chrono::steady_clock::time_point since, std::chrono::milliseconds time) const
{
    if (m_pausing || std::chrono::steady_clock::now() - since >= time)
        return false;
    pause();
    return true;
}

} // namespace Engine
