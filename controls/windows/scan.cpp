#include "controls/windows/scan.h"

#include "controls/windows/typing.h"

#include <QKeyEvent>

namespace Tallymere {

namespace {

bool isModifier(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Shift || key.key() == Qt::Key_AltGr || key.key() == Qt::Key_CapsLock;
}

bool isLetter(const QKeyEvent &key)
{
    return key.text().size() == 1 && key.text().front().isPrint() && !key.isAutoRepeat()
        && !key.modifiers().testFlag(Qt::ControlModifier) && !key.modifiers().testFlag(Qt::AltModifier);
}

bool endsScan(const QKeyEvent &key) { return isEnter(key) || key.key() == Qt::Key_Tab; }

} // namespace

bool Scan::take(const QKeyEvent &key)
{
    if (isModifier(key)) // a scanner presses them for capital letters
        return false;
    const quint64 pause = key.timestamp() - m_last;
    const bool isTimed = key.timestamp() != 0 && m_last != 0 && key.timestamp() >= m_last;
    if (endsScan(key)) {
        m_code = m_letters;
        m_letters.clear();
        return isTimed && pause <= longestEnd && m_code.size() >= fewestLetters;
    }
    if (!isLetter(key)) {
        m_letters.clear();
        m_last = 0;
        return false;
    }
    if (!isTimed || pause > longestPause)
        m_letters.clear();
    m_letters += key.text();
    m_last = key.timestamp();
    return false;
}

} // namespace Tallymere
