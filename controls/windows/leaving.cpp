#include "controls/windows/leaving.h"

#include <QApplication>
#include <QFocusEvent>
#include <QVariant>
#include <QWidget>

namespace Tallymere {

namespace {
int takingBack = 0;
} // namespace

bool keepsEntry(const QWidget *widget) { return widget && widget->property("keepsEntry").toBool(); }

bool dropsEntry(const QWidget *widget) { return widget && widget->property("dropsEntry").toBool(); }

bool comesBack(Qt::FocusReason reason)
{
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
}

TakingBack::TakingBack() { ++takingBack; }

TakingBack::~TakingBack() { --takingBack; }

bool TakingBack::isOn() { return takingBack > 0; }

bool handsEntryOver(const QFocusEvent &focusOut)
{
    return !TakingBack::isOn() && !comesBack(focusOut.reason()) && !keepsEntry(QApplication::focusWidget());
}

} // namespace Tallymere
