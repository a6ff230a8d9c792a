#pragma once

#include "controls/grids/windowmemory.h"
#include "controls/screens/dialogscreen.h"
#include "data/readaside.h"
#include "insight/firststeps.h"

#include <memory>

class QLabel;

namespace Ui {
class TfrmFirstSteps;
}

namespace Tallymere {

class StateLabel;

// "First Steps": what is to be done with new books, each with its state and what does it. It looks again each time it comes to
// the front, aside, and goes by itself when everything has been done under its eyes. Not modal; it frees itself when it is closed.
class TfrmFirstSteps final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmFirstSteps(ScreenContext &context, QWidget *parent);
    ~TfrmFirstSteps() override;

    // Whether the user wants it at the start of the system, as long as there is something to be done.
    static bool isWantedAtStart(ScreenContext &context);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showStep() override;

private:
    struct Shown
    {
        const FirstStep *step;
        QLabel *detail;
        StateLabel *done;
        StateLabel *open;
        QList<QPushButton *> ways;
        FirstStepState state;
    };

    void addStep(const FirstStep &step);
    QPushButton *addWay(const FirstStep &step, const FirstStepWay &way);
    void read();
    void showUnread(const std::exception_ptr &failure);
    void take(const QList<FirstStepState> &states);
    void show(Shown &shown, const FirstStepState &state);
    void go(const FirstStep &step, const FirstStepWay &way);
    void importFile(const QString &kind);
    void openScreen(const QString &screen);
    void keepChoice();

    const std::unique_ptr<::Ui::TfrmFirstSteps> m_ui;
    WindowMemory m_memory;
    QList<Shown> m_shown;
    bool m_wasOpen = false; // something was left to be done
    ReadAside m_aside{this};
};

} // namespace Tallymere
