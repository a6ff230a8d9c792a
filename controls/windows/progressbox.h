#pragma once

#include "controls/windows/steppedprogress.h"

#include <chrono>
#include <memory>
#include <QElapsedTimer>

class QProgressDialog;
class QWidget;

namespace Tallymere {

// Long work in a box over a window, with what it is about, how much of it is done in percent, and Cancel, which lets the
// work end with SilentAbort. What takes no longer than a moment shows no box. Other windows wait meanwhile.
class ProgressBox final : public SteppedProgress
{
public:
    static constexpr std::chrono::milliseconds moment{400};

    ProgressBox(QWidget *window, const QString &what, std::chrono::milliseconds shownAfter = moment);
    ~ProgressBox() override;
    ProgressBox(const ProgressBox &) = delete;
    ProgressBox &operator=(const ProgressBox &) = delete;

    void finish() override;
    void tell(const QString &what) override; // below what all is about

private:
    void showStart(int steps) override;
    void showDone(int steps) override; // throws SilentAbort where Cancel has been pressed
    void repaint();

    std::unique_ptr<QProgressDialog> m_box;
    const QString m_what;
    std::chrono::milliseconds m_shownAfter;
    QElapsedTimer m_sinceStart;
};

} // namespace Tallymere
