#include "frame/figurebutton.h"

#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QPainter>
#include <QStatusTipEvent>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int insetPixels = 4; // within the frame of the cursor
} // namespace

FigureButton::FigureButton(const QString &title, QWidget *parent)
    : QAbstractButton(parent)
{
    setText(title);
    setFont(secondFont(font()));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFigure({}, Tone::Usual, {});
}

void FigureButton::setFigure(const QString &figure, Tone tone, const QString &detail)
{
    m_figure = figure;
    m_tone = tone;
    setAccessibleName(figure.isEmpty() ? text() : tr("%1: %2").arg(text(), figure));
    setAccessibleDescription(detail);
    setToolTip(detail);
    setStatusTip(detail);
    if (hasFocus())
        tell(detail);
    updateGeometry();
    update();
}

QFont FigureButton::figureFont() const
{
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

QSize FigureButton::sizeHint() const
{
    const int figure = QFontMetrics(figureFont()).horizontalAdvance(m_figure);
    return {fontMetrics().horizontalAdvance(text()) + scaled(this, Space::cell) + figure
                + 2 * scaled(this, insetPixels) + 1, // the widths of both texts are rounded
            std::max(fontMetrics().height() + scaled(this, Space::cell), scaled(this, Space::row))};
}

// The title may be cut, the figure not.
QSize FigureButton::minimumSizeHint() const
{
    const QSize wanted = sizeHint();
    return {wanted.width() / 2, wanted.height()};
}

void FigureButton::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void FigureButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

// What the mouse shows over it, the keyboard shows as well: by whom, since when.
void FigureButton::tell(const QString &tip)
{
    QStatusTipEvent told(tip);
    QCoreApplication::sendEvent(this, &told);
}

void FigureButton::focusInEvent(QFocusEvent *event)
{
    QAbstractButton::focusInEvent(event);
    tell(statusTip());
}

void FigureButton::focusOutEvent(QFocusEvent *event)
{
    QAbstractButton::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason)
        tell({});
}

void FigureButton::paintEvent(QPaintEvent *)
{
    using enum Look::Role;
    const Look look(palette());
    const QColor ground = palette().color(QPalette::Window);
    QPainter painter(this);

    const QFontMetrics figureMetrics(figureFont());
    const int figureWidth = figureMetrics.horizontalAdvance(m_figure);
    const int inset = scaled(this, insetPixels);
    const QRect area = rect().adjusted(inset, 0, -inset, 0);
    const QRect titleArea = area.adjusted(0, 0, -figureWidth - scaled(this, Space::cell), 0);
    painter.setPen(look.on(ground, underMouse() ? Accent : SecondText));
    painter.drawText(titleArea, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, titleArea.width()));
    painter.setFont(figureFont());
    painter.setPen(look.on(ground, m_tone == Tone::Alarm ? Negative : Text));
    painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter, m_figure);

    painter.setPen(look.colour(Line));
    painter.drawLine(rect().bottomLeft(), rect().bottomRight());
    if (hasFocus()) {
        painter.setPen(look.on(ground, Accent));
        painter.drawRect(rect().adjusted(1, 1, -2, -2)); // whole at fractions of a pixel as well
    }
}

} // namespace Tallymere
