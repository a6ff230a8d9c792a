#include "controls/windows/screenmetrics.h"

#include "controls/windows/windowplaces.h"

#include <QLabel>
#include <QLayout>
#include <QScreen>
#include <QWidget>

namespace Tallymere {

namespace {
constexpr double designPixelsPerInch = 96.0;
constexpr auto furtherProperty = "furtherScreen";

void layOutAnew(QWidget &window)
{
    const QList<QLayout *> layouts = window.findChildren<QLayout *>();
    for (QLayout *layout : layouts)
        layout->invalidate();
    window.layout()->activate();
}

// Fields that may grow may be half as wide as their form wants them, before the window is cut; buttons and fields of a
// width of their own keep it.
void giveUpLeastWidths(QWidget *window)
{
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool shrinks = widget->sizePolicy().horizontalPolicy() & QSizePolicy::ShrinkFlag;
        if (shrinks && widget->minimumWidth() < widget->maximumWidth())
            widget->setMinimumWidth(widget->minimumWidth() / 2);
        widget->updateGeometry();
    }
    layOutAnew(*window);
}

// Labels of several words may take several lines, as some languages need it.
void breakLabels(QWidget *window)
{
    const QList<QLabel *> labels = window->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text().contains(u' '))
            label->setWordWrap(true);
    }
    layOutAnew(*window);
}
} // namespace

double fontFactor(const QWidget *widget) { return widget->logicalDpiX() / designPixelsPerInch; }

int scaled(const QWidget *widget, int pixels) { return qRound(pixels * fontFactor(widget)); }

void scaleForm(QWidget *form)
{
    const QList<QWidget *> widgets = form->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->minimumWidth() > 0)
            widget->setMinimumWidth(scaled(form, widget->minimumWidth()));
        if (widget->maximumWidth() < QWIDGETSIZE_MAX)
            widget->setMaximumWidth(scaled(form, widget->maximumWidth()));
    }
}

void fitToScreen(QWidget *window)
{
    const QSize room = window->screen()->availableSize();
    const QMargins frame = expectedFrame(*window);
    for (const auto give : {giveUpLeastWidths, breakLabels}) {
        if (window->minimumSizeHint().width() > room.width() - frame.left() - frame.right())
            give(window);
    }
    window->resize(window->size().boundedTo(room));
}

void bringToFront(QWidget &window)
{
    if (window.isMinimized())
        window.showNormal();
    window.show();
    window.raise();
    window.activateWindow();
}

void showCursorAlways(QWidget &window) { window.setAttribute(Qt::WA_KeyboardFocusChange); }

void markAsFurther(QWidget &window) { window.setProperty(furtherProperty, true); }

QWidget *findScreen(const QString &name)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == name && !window->property(furtherProperty).toBool())
            return window;
    }
    return nullptr;
}

} // namespace Tallymere
