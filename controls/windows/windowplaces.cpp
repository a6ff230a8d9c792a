#include "controls/windows/windowplaces.h"

#include "controls/windows/screenmetrics.h"

#include <algorithm>
#include <QGuiApplication>
#include <QRegion>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace Tallymere {

namespace {

constexpr int diagonalStep = 28; // design pixels, between windows that would stand on each other
constexpr int gapBetween = 8; // and between those that stand beside each other

int area(const QRect &rectangle) { return rectangle.isEmpty() ? 0 : rectangle.width() * rectangle.height(); }

QList<QRect> availableScreens()
{
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    return screens;
}

// As the window manager says it now: a widget may go on with the frame that it had not yet when it was first asked for it.
QMargins frameOf(const QWidget &window)
{
    const QWindow *shown = window.windowHandle();
    return shown ? shown->frameMargins() : QMargins();
}

QRect withFrame(const QWidget &window) { return window.geometry().marginsAdded(frameOf(window)); }

// The windows that a further one would hide: its opener and all that somebody has opened. A window behind them which
// waits for them to close is none.
QList<QRect> openBeside(const QWidget &window)
{
    QList<QRect> places;
    const QWidgetList others = QApplication::topLevelWidgets();
    for (const QWidget *other : others) {
        const bool isOpener = other == window.parentWidget()->window();
        const bool isOpened =
            other->parentWidget() && (other->windowType() == Qt::Window || other->windowType() == Qt::Dialog);
        if (other != &window && other->isVisible() && !other->isMinimized() && (isOpener || isOpened))
            places.append(withFrame(*other));
    }
    return places;
}

void putAt(QWidget &window, const QRect &inside, const QList<QRect> &screens)
{
    const QMargins frame = expectedFrame(window);
    window.setGeometry(onScreens(inside.marginsAdded(frame), screens).marginsRemoved(frame));
}

} // namespace

QRect onScreens(const QRect &window, const QList<QRect> &screens)
{
    if (screens.isEmpty())
        return window;
    QRegion shown;
    for (const QRect &screen : screens)
        shown += screen;
    if (QRegion(window).subtracted(shown).isEmpty())
        return window;
    const QRect best = *std::max_element(screens.begin(), screens.end(), [&](const QRect &a, const QRect &b) {
        return area(a & window) < area(b & window);
    });
    QRect moved(window.topLeft(), window.size().boundedTo(best.size()));
    moved.moveRight(std::min(moved.right(), best.right()));
    moved.moveBottom(std::min(moved.bottom(), best.bottom()));
    moved.moveTo(std::max(moved.left(), best.left()), std::max(moved.top(), best.top()));
    return moved;
}

QPoint apartFrom(const QList<QPoint> &taken, QPoint place, int step, const QRect &screen)
{
    for (qsizetype tries = 0; tries <= taken.size() && taken.contains(place); ++tries) {
        place += QPoint(step, step);
        if (place.x() > screen.right() - step)
            place.setX(screen.left());
        if (place.y() > screen.bottom() - step)
            place.setY(screen.top());
    }
    return place;
}

QPoint besideOthers(const QList<QRect> &taken, QPoint opener, QSize size, int gap, const QRect &screen)
{
    QList<QPoint> places{screen.topLeft(), screen.topRight(), screen.bottomLeft(), screen.bottomRight()};
    for (const QRect &other : taken) {
        places << QPoint(other.right() + gap, other.top()) << QPoint(other.left(), other.bottom() + gap)
               << QPoint(other.left() - size.width() - gap, other.top())
               << QPoint(other.left(), other.top() - size.height() - gap);
    }
    const auto rank = [&](QPoint place) {
        int hidden = 0;
        for (const QRect &other : taken)
            hidden += area(other & QRect(place, size));
        return std::pair(hidden, (place - opener).manhattanLength());
    };
    for (QPoint &place : places)
        place = onScreens(QRect(place, size), {screen}).topLeft();
    return *std::min_element(places.begin(), places.end(),
                             [&](QPoint one, QPoint other) { return rank(one) < rank(other); });
}

QMargins expectedFrame(const QWidget &window)
{
    return window.parentWidget() ? frameOf(*window.parentWidget()->window()) : QMargins();
}

void placeByOpener(QWidget &window)
{
    if (!window.parentWidget())
        return;
    const QWidget *opener = window.parentWidget()->window();
    const QRect screen = window.screen()->availableGeometry();
    const QMargins frame = expectedFrame(window);
    const QSize size = QRect({}, window.size()).marginsAdded(frame).size();
    const QPoint place =
        besideOthers(openBeside(window), withFrame(*opener).topLeft(), size, scaled(&window, gapBetween), screen);
    putAt(window, QRect(place + QPoint(frame.left(), frame.top()), window.size()), {screen});
}

void standApart(QWidget &window)
{
    QList<QPoint> taken;
    const QWidgetList others = QApplication::topLevelWidgets();
    for (const QWidget *other : others) {
        if (other != &window && other->isVisible() && other->objectName() == window.objectName())
            taken.append(other->geometry().topLeft());
    }
    const QPoint stands = window.geometry().topLeft();
    const QPoint apart =
        apartFrom(taken, stands, scaled(&window, diagonalStep), window.screen()->availableGeometry());
    if (apart != stands)
        moveToPlace(window, QRect(apart, window.size()));
}

void moveToPlace(QWidget &window, const QRect &place) { putAt(window, place, availableScreens()); }

} // namespace Tallymere
