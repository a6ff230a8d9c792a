#pragma once

#include <QString>

class QKeyEvent;
class QWidget;

namespace Tallymere {

// Whether a text begins with a character that is shown.
bool isPrinted(const QString &text);
// Whether the key types a character, and is no command. Ctrl with Alt types letters on some keyboards.
bool isTyped(const QKeyEvent &key);
// Whether it is one of the two.
bool isEnter(const QKeyEvent &key);
// Enter presses the button with the cursor, in windows that are no dialogs. False where there is none.
bool pressButton(const QWidget &window, const QKeyEvent &key);

} // namespace Tallymere
