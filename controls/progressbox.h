#pragma once

#include "base/prompts.h"

#include <chrono>
#include <memory>
#include <QElapsedTimer>

class QProgressDialog;
class QWidget;

namespace Tallymere {

// Long work in a box over a window, with what it is about, how much of it is done in percent, and Cancel, which lets the
// work end with SilentAbort. What takes no longer than a moment shows no box. Other windows wait meanwhile.
class ProgressBox final : public Progress
{
public:
    static constexpr std::chrono::milliseconds moment{400};

    ProgressBox(QWidget *window, const QString &what, std::chrono::milliseconds shownAfter = moment);
    ~ProgressBox() override;
    ProgressBox(const ProgressBox &) = delete;
    ProgressBox &operator=(const ProgressBox &) = delete;

    void start(int steps) override; // 0: nobody knows how many
    void step() override;
    void finish() override;

private:
    void show(bool all);

    std::unique_ptr<QProgressDialog> m_box;
    std::chrono::milliseconds m_shownAfter;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceShown;
    int m_steps = 0;
    int m_done = 0;
};

} // namespace Tallymere
