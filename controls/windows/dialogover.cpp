#include "controls/windows/dialogover.h"

#include <QApplication>
#include <QWidget>

namespace Tallymere {

QWidget *dialogOver(const QWidget *window)
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (!window || !dialog)
        return nullptr;
    // What belongs to a modal window can be used while that is open.
    for (const QWidget *owner = window->window(); owner; owner = owner->parentWidget()) {
        if (owner == dialog)
            return nullptr;
    }
    return dialog;
}

bool isHeldByDialog(const QWidget *window)
{
    QWidget *dialog = dialogOver(window);
    if (!dialog)
        return false;
    dialog->raise();
    dialog->activateWindow();
    return true;
}

} // namespace Tallymere
