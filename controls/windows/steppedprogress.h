#pragma once

#include "base/prompts.h"

#include <QElapsedTimer>

namespace Tallymere {

// Long work that a widget shows. It is shown, and windows repaint, often enough to look alive and seldom enough to cost
// nothing.
class SteppedProgress : public Progress
{
public:
    void start(int steps) final;
    void step() final;
    void
    at(int done); // in place of steps, for work that counts them elsewhere; lets the windows repaint as they do

protected:
    SteppedProgress();

    virtual void showStart(int steps) = 0;
    // How many steps are done, never more than there are; lets the windows repaint. It may throw to end the work.
    virtual void showDone(int steps) = 0;

private:
    QElapsedTimer m_sinceShown;
    int m_steps = 0;
    int m_done = 0;
};

} // namespace Tallymere
