#pragma once

#include <functional>
#include <QString>

class QLineEdit;

namespace Tallymere {

// Lets a box take one line of so many characters at most, however it comes: control characters become blanks
// (Engine::oneLine). What does not fit is cut off where it was put in. Of what was pasted the user is told; a key too
// many beeps and is told of beside the box, since who types on would answer a message unread. The name is for a box
// without a label; "say" shows the message, once the event is over.
void takeOneLine(QLineEdit &edit, int size, const QString &name, const std::function<void(const QString &)> &say);

} // namespace Tallymere
