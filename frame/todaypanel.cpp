#include "frame/todaypanel.h"

#include "controls/windows/guard.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "frame/figurebutton.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Tallymere {

TodayPanel::TodayPanel(QWidget *parent)
    : QWidget(parent)
{
    constexpr int late = 1000; // ms
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    addHead();
    for (const TodayLine &line : todayLines())
        addLine(line);
    layout->addStretch();

    m_late.setInterval(late);
    connect(&m_late, &QTimer::timeout, this, &TodayPanel::showTime);
}

void TodayPanel::addHead()
{
    auto *head = new QLabel(tr("Today"), this);
    QFont font = headFont(head->font());
    font.setCapitalization(QFont::AllUppercase);
    head->setFont(font);
    head->setIndent(scaled(this, 4));
    head->setFixedHeight(scaled(this, Space::row));
    m_timeShown = new QLabel(this);
    m_timeShown->setObjectName(u"lblTodayTime"_s);
    m_timeShown->setFont(secondFont(m_timeShown->font()));
    m_timeShown->setIndent(scaled(this, 4));
    auto *row = new QHBoxLayout;
    row->addWidget(head);
    row->addStretch();
    row->addWidget(m_timeShown);
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
}

void TodayPanel::addLine(const TodayLine &line)
{
    auto *button = new FigureButton(line.title, this);
    button->setObjectName(line.name);
    layout()->addWidget(button);
    const qsizetype place = m_shown.size();
    m_shown.append({&line, button, line.screen});
    connect(button, &QAbstractButton::clicked, this,
            [this, place] { Q_EMIT chosen(m_shown[place].screen, m_shown[place].waits); });
}

void TodayPanel::refresh()
{
    const std::optional<TodaySource> from = source ? source() : std::nullopt;
    if (!from)
        return;
    if (!m_aside.isReading())
        m_late.start();
    // Who cannot be reached for one figure is not asked for the others.
    const auto read = [this, user = from->user, folder = from->draftFolder](Engine::Database &database) {
        const TodaySource own{database, user, folder};
        QList<TodayFigure> figures;
        const std::exception_ptr failure = Guard::attempt([&] { figures = Engine::answersOf(todayLines(), own); });
        const QTime time = database.session().now().time();
        return [this, figures, failure, time] {
            if (failure)
                Guard::trace(failure);
            take(figures, time);
        };
    };
    m_aside.start(from->database, read, [this](const std::exception_ptr &failure) {
        Guard::trace(failure);
        take({}, {});
    });
}

void TodayPanel::take(const QList<TodayFigure> &figures, const QTime &time)
{
    m_late.stop();
    m_time = figures.empty() ? QTime() : time;
    m_timeShown->clear();
    for (qsizetype line = 0; line < m_shown.size(); ++line) {
        const bool isRead = line < figures.size();
        show(m_shown[line],
             isRead ? figures[line] : TodayFigure{.text = u"-"_s, .detail = tr("This could not be read.")});
    }
}

void TodayPanel::showTime()
{
    m_timeShown->setText(m_time.isValid() ? tr("as of %1").arg(m_time.toString(u"HH:mm"_s)) : tr("reading..."));
}

void TodayPanel::show(Shown &shown, const TodayFigure &figure)
{
    const bool alarms = figure.waits && shown.line->tone == TodayLine::Tone::Alarm;
    shown.waits = figure.waits;
    shown.screen = figure.screen.isEmpty() ? shown.line->screen : figure.screen;
    shown.button->setFigure(figure.text, alarms ? FigureButton::Tone::Alarm : FigureButton::Tone::Usual,
                            figure.detail);
}

} // namespace Tallymere
