#include "controls/windows/steppedprogress.h"

#include <algorithm>

namespace Tallymere {

namespace {
constexpr qint64 repaintEvery = 50; // ms
} // namespace

SteppedProgress::SteppedProgress() { m_sinceShown.start(); }

void SteppedProgress::start(int steps)
{
    m_steps = steps;
    m_done = 0;
    showStart(steps);
}

void SteppedProgress::step() { at(m_done + 1); }

void SteppedProgress::at(int done)
{
    m_done = done;
    if (m_sinceShown.elapsed() < repaintEvery)
        return;
    showDone(std::min(m_done, m_steps));
    m_sinceShown.restart();
}

} // namespace Tallymere
