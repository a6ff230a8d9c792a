#include "controls/screenmetrics.h"

#include <QWidget>

namespace Tallymere {

namespace {
constexpr double designPixelsPerInch = 96.0;
} // namespace

double fontFactor(const QWidget *widget) { return widget->logicalDpiX() / designPixelsPerInch; }

int scaled(const QWidget *widget, int pixels) { return qRound(pixels * fontFactor(widget)); }

QWidget *findScreen(const QString &name)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == name)
            return window;
    }
    return nullptr;
}

} // namespace Tallymere
