#pragma once

#include <QString>

class QKeyEvent;

namespace Tallymere {

// Whether a text begins with a character that is shown.
bool isPrinted(const QString &text);
// Whether the key types a character, and is no command. Ctrl with Alt types letters on some keyboards.
bool isTyped(const QKeyEvent &key);

} // namespace Tallymere
