#pragma once

#include <Qt>
#include <QtGlobal>

class QFocusEvent;
class QWidget;

namespace Tallymere {

// Whether a widget leaves what has been entered elsewhere as it is, without handing it over: one with the dynamic
// property "keepsEntry", such as a Cancel or a Help button.
bool keepsEntry(const QWidget *widget);

// Whether it is given up there: one with the dynamic property "dropsEntry" as well, such as a Cancel button. For editors
// that do not stay open while the cursor is elsewhere.
bool dropsEntry(const QWidget *widget);

// Whether the cursor comes back by itself, from a pop-up or another window.
bool comesBack(Qt::FocusReason reason);

// As long as one lives, the cursor is being taken back to what has been refused. What was begun elsewhere meanwhile, as by
// whoever types fast, is not judged by that: two entries that are refused would take the cursor from each other without end.
class TakingBack
{
public:
    TakingBack();
    ~TakingBack();
    Q_DISABLE_COPY_MOVE(TakingBack)

    static bool isOn();
};

// Whether the cursor goes for good with this event, so that what has been entered is handed over: not when it comes
// back by itself or is taken back, and not when it goes to a widget that keeps the entry.
bool handsEntryOver(const QFocusEvent &focusOut);

} // namespace Tallymere
