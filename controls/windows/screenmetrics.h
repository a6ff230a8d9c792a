#pragma once

#include <QApplication>
#include <QSize>

class QWidget;

namespace Tallymere {

// Screen pixels per inch / 96: what sizes given in design pixels are scaled by.
double fontFactor(const QWidget *widget);
// A design size in the widget's pixels.
int scaled(const QWidget *widget, int pixels);

// Scales the widths that a form gives its widgets in design pixels. Once for each form, before it is shown.
void scaleForm(QWidget *form);

// Makes a window that is larger than its screen as small as that: where it is too wide fields give up width first, then labels
// of several words take several lines. What it needs then is kept.
void fitToScreen(QWidget *window);

// Shows a window, not minimised, in front of the others and active.
void bringToFront(QWidget &window);

// Marks the widget that has the cursor however that has come there: in drop-down lists, check boxes and buttons styles
// show it only once Tab or a mnemonic has been used in the window. For each time the window is shown, which forgets it.
void showCursorAlways(QWidget &window);

// The open window with the component name, or nullptr. Where several are open it is the one that commands lead to, not
// a further one.
void markAsFurther(QWidget &window);
QWidget *findScreen(const QString &name);
template <typename Screen> Screen *findScreen(const QString &name)
{
    return qobject_cast<Screen *>(findScreen(name));
}

// The hourglass for as long as it lives.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};

} // namespace Tallymere
