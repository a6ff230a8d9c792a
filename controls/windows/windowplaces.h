#pragma once

#include <optional>
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

// Beside one of the windows that stand there, on none of them and wholly on the screen: the place nearest to the opener.
// Nothing where there is no room for that.
std::optional<QPoint> besideOthers(const QList<QRect> &taken, QPoint opener, QSize size, int gap,
                                   const QRect &screen);

// The frame that a window will have: that of the window it was opened from.
QMargins expectedFrame(const QWidget &window);

// Beside the windows that are open, where there is room, and else a little below and to the right of the one that it was
// opened from, so that both can be reached; wholly on the screen. Window managers would put it where it hides least,
// however far away that is.
void placeByOpener(QWidget &window);

// Windows of one kind, which have the same component name, do not stand exactly on each other.
void standApart(QWidget &window);

// Gives a window its place, as far as the screens show it with its frame.
void moveToPlace(QWidget &window, const QRect &place);

} // namespace Tallymere
