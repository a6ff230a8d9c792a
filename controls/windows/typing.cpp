#include "controls/windows/typing.h"

#include <QKeyEvent>

namespace Tallymere {

bool isPrinted(const QString &text)
{
    return !text.isEmpty() && (text.front().isPrint() || text.front().isSurrogate());
}

bool isTyped(const QKeyEvent &key)
{
    const Qt::KeyboardModifiers modifiers = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (modifiers == Qt::ControlModifier || modifiers == Qt::AltModifier
        || key.modifiers().testFlag(Qt::MetaModifier))
        return false;
    return isPrinted(key.text());
}

} // namespace Tallymere
