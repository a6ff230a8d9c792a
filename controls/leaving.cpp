#include "controls/leaving.h"

#include <QApplication>
#include <QFocusEvent>
#include <QVariant>
#include <QWidget>

namespace Tallymere {

bool keepsEntry(const QWidget *widget) { return widget && widget->property("keepsEntry").toBool(); }

bool handsEntryOver(const QFocusEvent &focusOut)
{
    const bool comesBack =
        focusOut.reason() == Qt::PopupFocusReason || focusOut.reason() == Qt::ActiveWindowFocusReason;
    return !comesBack && !keepsEntry(QApplication::focusWidget());
}

} // namespace Tallymere
