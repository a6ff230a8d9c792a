#include "controls/windows/leaving.h"

#include <QApplication>
#include <QFocusEvent>
#include <QVariant>
#include <QWidget>

namespace Tallymere {

bool keepsEntry(const QWidget *widget) { return widget && widget->property("keepsEntry").toBool(); }

bool dropsEntry(const QWidget *widget) { return widget && widget->property("dropsEntry").toBool(); }

bool comesBack(Qt::FocusReason reason)
{
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
}

bool handsEntryOver(const QFocusEvent &focusOut)
{
    return !comesBack(focusOut.reason()) && !keepsEntry(QApplication::focusWidget());
}

} // namespace Tallymere
