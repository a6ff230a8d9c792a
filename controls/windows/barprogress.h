#pragma once

#include "controls/windows/steppedprogress.h"

class QProgressBar;

namespace Tallymere {

// Long work in a progress bar. What the user types or clicks waits until the work is done.
class BarProgress final : public SteppedProgress
{
public:
    explicit BarProgress(QProgressBar *bar);

    void finish() override;

    bool hasStarted() const { return m_started; }

private:
    void showStart(int steps) override;
    void showDone(int steps) override;

    QProgressBar *m_bar;
    bool m_started = false;
};

} // namespace Tallymere
