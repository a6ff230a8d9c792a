#pragma once

#include "transactions/today.h"

#include <functional>
#include <optional>
#include <QDeadlineTimer>
#include <QTimer>
#include <QWidget>

namespace Tallymere {

class FigureButton;

// "Today" beside the commands of the main window: what waits, a line each. The figures are read one after the other while
// the window has nothing else to do; one that cannot be read is a dash.
class TodayPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit TodayPanel(QWidget *parent = nullptr);

    // Where the figures are read, asked before each. Nothing: not now, and the next refresh() begins again.
    std::function<std::optional<TodaySource>()> source;
    void refresh();

Q_SIGNALS:
    void chosen(const Tallymere::TodayLine &line, bool waits); // by the user

private:
    struct Shown
    {
        const TodayLine &line;
        FigureButton *button;
        bool waits = false;
    };
    void addLine(const TodayLine &line);
    void readNext();
    void giveUp(qint64 milliseconds);
    void show(Shown &shown, const TodayFigure &figure);

    QList<Shown> m_shown;
    qsizetype m_next = 0;
    QDeadlineTimer m_rest{0}; // until which nothing is read
    QTimer m_idle;
};

} // namespace Tallymere
