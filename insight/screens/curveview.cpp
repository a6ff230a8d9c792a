#include "insight/screens/curveview.h"

#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "engine/values/userlocale.h"

#include <algorithm>
#include <QChart>
#include <QDateTimeAxis>
#include <QGraphicsLayout>
#include <QKeyEvent>
#include <QLineSeries>
#include <QMouseEvent>
#include <QPainter>
#include <QValueAxis>
#include <utility>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

qreal timeOf(QDate date) { return static_cast<qreal>(date.startOfDay().toMSecsSinceEpoch()); }

} // namespace

CurveView::CurveView(Tone tone, QString hint, QWidget *parent)
    : QChartView(parent)
    , m_tone(tone)
    , m_hint(std::move(hint))
{
    setRenderHint(QPainter::Antialiasing);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    chart()->legend()->hide();
    chart()->setMargins({});
    chart()->setBackgroundRoundness(0);
    chart()->layout()->setContentsMargins(0, 0, 0, 0);
}

void CurveView::setPoints(std::vector<CurvePoint> points, CurveTime time, const QString &whole)
{
    m_points = std::move(points);
    m_time = time;
    m_current = -1;
    setAccessibleDescription(whole);
    draw();
}

void CurveView::draw()
{
    chart()->removeAllSeries();
    for (QAbstractAxis *axis : chart()->axes()) {
        chart()->removeAxis(axis);
        axis->deleteLater(); // the chart leaves it to us
    }
    if (m_points.empty())
        return paintLook();
    auto *line = new QLineSeries;
    QList<QPointF> corners;
    for (const CurvePoint &point : m_points) {
        if (!corners.isEmpty())
            corners.append({timeOf(point.date), corners.last().y()});
        corners.append({timeOf(point.date), point.value});
    }
    corners.append({timeOf(m_time.to), corners.last().y()});
    line->replace(corners);
    chart()->addSeries(line);

    auto *times = new QDateTimeAxis;
    const QDate last = std::max(m_time.to, m_time.from.addDays(1));
    times->setRange(m_time.from.startOfDay(), last.startOfDay());
    constexpr int monthsFrom = 120; // days
    times->setFormat(m_time.from.daysTo(last) < monthsFrom ? u"d MMM"_s : u"MMM yy"_s);
    times->setTickCount(4);
    auto *values = new QValueAxis;
    const auto [least, greatest] = std::ranges::minmax_element(m_points, {}, &CurvePoint::value);
    // A quantity from nothing on; of an amount that changes little only where it changes.
    const double margin = std::max(0.05 * greatest->value, 0.01);
    const double low = m_tone == Tone::Accent ? std::min(0.0, least->value) : std::max(0.0, least->value - margin);
    values->setRange(low, std::max(greatest->value + (m_tone == Tone::Accent ? 0 : margin), low + margin));
    values->setTickCount(m_tone == Tone::Accent ? 3 : 2); // where there is room for them
    values->applyNiceNumbers();
    values->setLabelFormat(u"%.10g"_s);
    chart()->setLocale(Engine::userLocale().locale);
    chart()->setLocalizeNumbers(true);
    chart()->addAxis(times, Qt::AlignBottom);
    chart()->addAxis(values, Qt::AlignLeft);
    line->attachAxis(times);
    line->attachAxis(values);
    paintLook();
}

int CurveView::roomOfFigures() const { return qRound(chart()->plotArea().left()) - chart()->margins().left(); }

void CurveView::leaveForFigures(int room)
{
    const QMargins margins(std::max(0, room - roomOfFigures()), 0, 0, 0);
    if (margins != chart()->margins())
        chart()->setMargins(margins);
}

// Everything in the colours of the palette in force; the library's own themes know none.
void CurveView::paintLook()
{
    const Look look(palette());
    const QColor ground = palette().color(QPalette::Window);
    chart()->setBackgroundBrush(ground);
    setBackgroundBrush(ground);
    constexpr qreal strong = 1.8;
    for (QAbstractSeries *series : chart()->series())
        static_cast<QLineSeries *>(series)->setPen(
            QPen(look.on(ground, m_tone == Tone::Accent ? Look::Role::Accent : Look::Role::NoticeText), strong));
    for (QAbstractAxis *axis : chart()->axes()) {
        axis->setLabelsFont(secondFont(font()));
        axis->setLabelsBrush(look.on(ground, Look::Role::SecondText));
        axis->setGridLinePen(QPen(look.colour(Look::Role::Line)));
        axis->setLinePen(QPen(look.colour(Look::Role::Line)));
        axis->setGridLineVisible(axis->orientation() == Qt::Vertical);
    }
}

void CurveView::changeEvent(QEvent *event)
{
    QChartView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        paintLook();
}

// --- one point ---------------------------------------------------------------------------------------------------

// The last one at or before the place, as the curve goes on from it; before the first, that.
int CurveView::pointAt(const QPointF &place) const
{
    if (m_points.empty() || !chart()->plotArea().adjusted(-8, -8, 8, 8).contains(place))
        return -1;
    const qreal time = chart()->mapToValue(place).x();
    const auto after =
        std::ranges::upper_bound(m_points, time, {}, [](const CurvePoint &point) { return timeOf(point.date); });
    return std::max(0, static_cast<int>(after - m_points.begin()) - 1);
}

void CurveView::moveTo(int point)
{
    if (point == m_current)
        return;
    m_current = point;
    Q_EMIT told(point < 0 ? QString() : m_points[static_cast<size_t>(point)].text);
    viewport()->update();
}

void CurveView::mouseMoveEvent(QMouseEvent *event) { moveTo(pointAt(event->position())); }

void CurveView::mouseDoubleClickEvent(QMouseEvent *event)
{
    moveTo(pointAt(event->position()));
    if (m_current >= 0)
        Q_EMIT chosen(m_current);
}

void CurveView::leaveEvent(QEvent *event)
{
    QChartView::leaveEvent(event);
    if (!hasFocus())
        moveTo(-1);
}

void CurveView::focusInEvent(QFocusEvent *event)
{
    QChartView::focusInEvent(event);
    if (m_current < 0)
        moveTo(static_cast<int>(m_points.size()) - 1);
}

// The point is kept for who comes back from the document behind it.
void CurveView::focusOutEvent(QFocusEvent *event)
{
    QChartView::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason)
        moveTo(-1);
    viewport()->update();
}

void CurveView::keyPressEvent(QKeyEvent *event)
{
    const auto last = static_cast<int>(m_points.size()) - 1;
    switch (event->key()) {
    case Qt::Key_Left:
        return moveTo(std::max(m_current - 1, std::min(0, last)));
    case Qt::Key_Right:
        return moveTo(std::min(m_current + 1, last));
    case Qt::Key_Home:
        return moveTo(std::min(0, last));
    case Qt::Key_End:
        return moveTo(last);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_current >= 0)
            Q_EMIT chosen(m_current);
        return;
    default:
        QChartView::keyPressEvent(event);
    }
}

void CurveView::drawForeground(QPainter *painter, const QRectF &)
{
    const Look look(palette());
    const QColor ground = palette().color(QPalette::Window);
    if (hasFocus()) {
        painter->setPen(QPen(look.on(ground, Look::Role::Accent), 1));
        painter->drawRect(mapToScene(viewport()->rect()).boundingRect().adjusted(0.5, 0.5, -1.5, -1.5));
    }
    if (m_points.empty())
        return drawHint(*painter);
    if (m_current < 0)
        return;
    const CurvePoint &point = m_points[static_cast<size_t>(m_current)];
    const QPointF place = chart()->mapToPosition({timeOf(point.date), point.value});
    constexpr qreal radius = 4;
    painter->setPen(Qt::NoPen);
    painter->setBrush(look.on(ground, Look::Role::Accent));
    painter->drawEllipse(place, radius, radius);
}

void CurveView::drawHint(QPainter &painter) const
{
    painter.setFont(font());
    painter.setPen(Look(palette()).on(palette().color(QPalette::Window), Look::Role::SecondText));
    painter.drawText(mapToScene(viewport()->rect()).boundingRect(), Qt::AlignCenter | Qt::TextWordWrap, m_hint);
}

} // namespace Tallymere
