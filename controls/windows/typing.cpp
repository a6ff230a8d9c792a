#include "controls/windows/typing.h"

#include <QAbstractButton>
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

bool isEnter(const QKeyEvent &key) { return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter; }

bool pressButton(const QWidget &window, const QKeyEvent &key)
{
    auto *button = isEnter(key) ? qobject_cast<QAbstractButton *>(window.focusWidget()) : nullptr;
    if (button)
        button->click();
    return button;
}

} // namespace Tallymere
