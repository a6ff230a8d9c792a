#include "controls/windows/statelabel.h"

#include "controls/windows/screenmetrics.h"

#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>

namespace Tallymere {

namespace {
constexpr int sideMargin = 8; // design pixels, as all here
constexpr int topMargin = 2;
constexpr int tickSize = 12;
constexpr int tickGap = 4;
} // namespace

StateLabel::StateLabel(QWidget *parent, State state)
    : QLabel(parent)
    , m_state(state)
{
    const int side = scaled(this, sideMargin);
    const int top = scaled(this, topMargin);
    if (state == State::Notice) {
        setContentsMargins(side, top, side, top);
    } else {
        setContentsMargins(scaled(this, tickSize + tickGap), top, 0, top);
        setFont(headFont(font()));
    }
    takeColours();
}

void StateLabel::takeColours()
{
    const QScopedValueRollback colouring(m_colouring, true);
    const Look look(palette());
    QPalette colours;
    colours.setColor(QPalette::WindowText,
                     look.colour(m_state == State::Done ? Look::Role::Positive : Look::Role::NoticeText));
    setPalette(colours);
}

void StateLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_colouring)
        takeColours();
}

QRectF StateLabel::tick() const
{
    const double size = scaled(this, tickSize);
    return {0, (height() - size) / 2, size, size};
}

void StateLabel::paintEvent(QPaintEvent *event)
{
    const Look look(palette());
    QPainter painter(this);
    if (m_state == State::Done)
        drawTick(painter, tick(), look.colour(Look::Role::Positive));
    else
        drawNoticeGround(painter, rect(), std::min(height() / 2, scaled(this, 2 * Space::corner)), look);
    painter.end();
    QLabel::paintEvent(event);
}

} // namespace Tallymere
