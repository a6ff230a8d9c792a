#include "controls/barprogress.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressBar>

namespace Tallymere {

namespace {
constexpr qint64 repaintEvery = 50; // ms
} // namespace

BarProgress::BarProgress(QProgressBar *bar)
    : m_bar(bar)
{
    m_sinceShown.start();
}

void BarProgress::start(int steps)
{
    m_started = true;
    m_done = 0;
    m_bar->setRange(0, steps);
    m_bar->setValue(0);
}

void BarProgress::step()
{
    ++m_done;
    if (m_sinceShown.elapsed() < repaintEvery)
        return;
    m_bar->setValue(m_done);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_sinceShown.restart();
}

void BarProgress::finish() { m_bar->setValue(m_bar->maximum()); }

} // namespace Tallymere
