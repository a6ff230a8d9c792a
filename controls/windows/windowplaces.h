#pragma once

#include <QList>
#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>

class QWidget;

namespace Tallymere {

// Where windows stand. Their own places are those of what is inside the frame, since a window that has not been shown
// does not know its frame yet, and window managers move what is placed by a frame that they add later.

// The rectangle, wholly on the screens: as it is when they show all of it, else moved onto the one that shows most of
// it, or the first. What is larger than that screen is cut to its size.
QRect onScreens(const QRect &window, const QList<QRect> &screens);

// A little below and to the right of the point, as often as something stands there already; from an edge of the
// screen on again at the opposite one.
QPoint apartFrom(const QList<QPoint> &taken, QPoint place, int step, const QRect &screen);

// Where a window of that size hides least of those that stand there, wholly on the screen: beside one of them if there is
// room, and of equally good places the nearest to the opener.
QPoint besideOthers(const QList<QRect> &taken, QPoint opener, QSize size, int gap, const QRect &screen);

// The frame that a window will have: that of the window it was opened from.
QMargins expectedFrame(const QWidget &window);

// Beside the windows that are open, where there is room, and else where it hides least of them.
void placeByOpener(QWidget &window);

// Windows of one kind, which have the same component name, do not stand exactly on each other.
void standApart(QWidget &window);

// Gives a window its place, as far as the screens show it with its frame.
void moveToPlace(QWidget &window, const QRect &place);

} // namespace Tallymere
