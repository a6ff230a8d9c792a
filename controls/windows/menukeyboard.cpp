#include "controls/windows/menukeyboard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

namespace Tallymere {

namespace {

// Escape is what the bar itself understands as giving the keyboard back. When the user goes on to the next menu, the
// bar is not left.
void leave(QMenuBar &bar)
{
    if (!bar.hasFocus() || QApplication::activePopupWidget())
        return;
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&bar, &escape);
}

} // namespace

void leaveMenuBarWithMenus(QMenuBar &bar)
{
    for (const QAction *title : bar.actions()) {
        if (QMenu *menu = title->menu())
            QObject::connect(
                menu, &QMenu::aboutToHide, &bar, [&bar] { leave(bar); }, Qt::QueuedConnection);
    }
}

} // namespace Tallymere
