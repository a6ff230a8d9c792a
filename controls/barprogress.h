#pragma once

#include "base/prompts.h"

#include <QElapsedTimer>

class QProgressBar;

namespace Tallymere {

// Long work in a progress bar. Windows repaint meanwhile, often enough to look alive and seldom enough to cost
// nothing; what the user types or clicks waits until the work is done.
class BarProgress final : public Progress
{
public:
    explicit BarProgress(QProgressBar *bar);

    void start(int steps) override;
    void step() override;
    void finish() override;

    bool hasStarted() const { return m_started; }

private:
    QProgressBar *m_bar;
    QElapsedTimer m_sinceShown;
    int m_done = 0;
    bool m_started = false;
};

} // namespace Tallymere
