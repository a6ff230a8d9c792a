#include "controls/windows/barprogress.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressBar>

namespace Tallymere {

BarProgress::BarProgress(QProgressBar *bar)
    : m_bar(bar)
{
}

void BarProgress::showStart(int steps)
{
    m_started = true;
    m_bar->setRange(0, steps);
    m_bar->setValue(0);
}

void BarProgress::showDone(int steps)
{
    m_bar->setValue(steps);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void BarProgress::finish() { m_bar->setValue(m_bar->maximum()); }

} // namespace Tallymere
