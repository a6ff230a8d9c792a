#pragma once

#include "controls/grids/windowmemory.h"
#include "controls/screens/commandscreen.h"
#include "controls/screens/dialogscreen.h"
#include "data/lastchoices.h"
#include "insight/monthend.h"

#include <memory>

class QLabel;
class QPushButton;

namespace Ui {
class TfrmMonthEnd;
}

namespace Tallymere {

class StateLabel;

// "Month End": what is to be done before a period is left behind, each line with its state and what opens it, and the button
// that opens the next period. It looks again each time it comes to the front. When the value was printed from here, and since
// when the locations are to have been counted, is kept for each period. Not modal; it frees itself when it is closed.
class TfrmMonthEnd final : public DialogScreen, public CommandScreen
{
    Q_OBJECT

public:
    TfrmMonthEnd(ScreenContext &context, QWidget *parent);
    ~TfrmMonthEnd() override;

    void refreshList() override { read(); }

protected:
    bool event(QEvent *event) override;
    void showStep() override;

private:
    struct Shown
    {
        MonthEndLine line;
        QLabel *figure;
        QLabel *detail;
        StateLabel *done;
        StateLabel *open;
        bool isMet = false;
    };

    void addLine(const MonthEndLine &line);
    void takePeriod();
    MonthEndSource source() const;
    void read();
    void lookAgain();
    void show(Shown &shown, const MonthEndFigure &figure);
    void showMore(const Shown &shown);
    void print(const QString &report);
    void keep();
    void btnOpenPeriodClick();

    const std::unique_ptr<::Ui::TfrmMonthEnd> m_ui;
    const LastChoices m_last;
    WindowMemory m_memory;
    QList<Shown> m_shown;
    EndingPeriod m_ending;
    QDateTime m_valuePrinted;
};

} // namespace Tallymere
