#include "frame/todaypanel.h"

#include "controls/windows/guard.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "frame/figurebutton.h"

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
    m_idle.start(0);
}

void TodayPanel::readNext()
{
    const std::optional<TodaySource> from = source ? source() : std::nullopt;
    if (!from || m_next >= m_shown.size())
        return;
    Shown &shown = m_shown[m_next];
    TodayFigure figure;
    const std::exception_ptr failure = Guard::attempt([&] { figure = shown.line.read(*from); });
    if (failure) {
        // Who cannot be reached for one figure is not asked for the others: that may take long.
        Guard::trace(failure);
        for (; m_next < m_shown.size(); ++m_next)
            show(m_shown[m_next], {u"-"_s});
        return;
    }
    show(shown, figure);
    if (++m_next < m_shown.size())
        m_idle.start(0);
}

void TodayPanel::show(Shown &shown, const TodayFigure &figure)
{
    const bool alarms = figure.waits && shown.line.tone == TodayLine::Tone::Alarm;
    shown.waits = figure.waits;
    shown.button->setFigure(figure.text, alarms ? FigureButton::Tone::Alarm : FigureButton::Tone::Usual,
                            figure.detail);
}

} // namespace Tallymere
