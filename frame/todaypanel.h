#pragma once

#include "data/readaside.h"
#include "insight/today.h"

#include <functional>
#include <optional>
#include <QTime>
#include <QTimer>
#include <QWidget>

class QLabel;

namespace Tallymere {

class FigureButton;

// "Today" beside the commands of the main window: what waits, a line each. The figures are read aside, so that the window is
// usable whatever the server does; until they come the last ones stay, with their time where it takes long. One that cannot be
// read is a dash.
class TodayPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit TodayPanel(QWidget *parent = nullptr);

    // Where the figures are read. Nothing: not now.
    std::function<std::optional<TodaySource>()> source;
    void refresh();

Q_SIGNALS:
    void chosen(const QString &screen, bool waits); // by the user

private:
    struct Shown
    {
        const TodayLine *line;
        FigureButton *button;
        QString screen; // that shows more of it now
        bool waits = false;
    };
    void addHead();
    void addLine(const TodayLine &line);
    void take(const QList<TodayFigure> &figures, const QTime &time); // those that could be read
    void showTime(); // of figures that the next ones are long in coming for
    void show(Shown &shown, const TodayFigure &figure);

    QList<Shown> m_shown;
    QLabel *m_timeShown = nullptr;
    QTime m_time; // of what is shown
    QTimer m_late;
    ReadAside m_aside{this};
};

} // namespace Tallymere
