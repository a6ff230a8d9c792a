#include "frame/todaypanel.h"

#include "controls/windows/guard.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "frame/figurebutton.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Tallymere {

TodayPanel::TodayPanel(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto *head = new QLabel(tr("Today"), this);
    QFont font = headFont(head->font());
    font.setCapitalization(QFont::AllUppercase);
    head->setFont(font);
    head->setIndent(scaled(this, 4));
    head->setFixedHeight(scaled(this, Space::row));
    layout->addWidget(head);
    for (const TodayLine &line : todayLines())
        addLine(line);
    layout->addStretch();

    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, &TodayPanel::readNext);
}

void TodayPanel::addLine(const TodayLine &line)
{
    auto *button = new FigureButton(line.title, this);
    button->setObjectName(line.name);
    layout()->addWidget(button);
    const qsizetype place = m_shown.size();
    m_shown.append({line, button});
    connect(button, &QAbstractButton::clicked, this,
            [this, place] { Q_EMIT chosen(m_shown[place].line, m_shown[place].waits); });
}

void TodayPanel::refresh()
{
    m_next = 0;
    if (m_rest.hasExpired())
        m_idle.start(0);
}

void TodayPanel::readNext()
{
    const std::optional<TodaySource> from = source ? source() : std::nullopt;
    if (!from || m_next >= m_shown.size())
        return;
    Shown &shown = m_shown[m_next];
    TodayFigure figure;
    QElapsedTimer time;
    time.start();
    const std::exception_ptr failure = Guard::attempt([&] { figure = shown.line.read(*from); });
    if (failure) {
        Guard::trace(failure);
        giveUp(time.elapsed());
        return;
    }
    show(shown, figure);
    if (++m_next < m_shown.size())
        m_idle.start(0);
}

// Who cannot be reached for one figure is not asked for the others. One that lets the window wait is left alone for a
// while, however often that comes to the front.
void TodayPanel::giveUp(qint64 milliseconds)
{
    constexpr qint64 longest = 1'000;
    if (milliseconds > longest)
        m_rest.setRemainingTime(std::chrono::seconds(60));
    for (; m_next < m_shown.size(); ++m_next)
        show(m_shown[m_next], {.text = u"-"_s, .detail = tr("This could not be read.")});
}

void TodayPanel::show(Shown &shown, const TodayFigure &figure)
{
    const bool alarms = figure.waits && shown.line.tone == TodayLine::Tone::Alarm;
    shown.waits = figure.waits;
    shown.button->setFigure(figure.text, alarms ? FigureButton::Tone::Alarm : FigureButton::Tone::Usual,
                            figure.detail);
}

} // namespace Tallymere
