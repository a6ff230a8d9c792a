#include "engine/values/textsize.h"

#include <algorithm>

namespace Engine {

namespace {

bool continuesCharacter(QChar unit) { return unit.isLowSurrogate(); }

} // namespace

qsizetype characterCount(const QString &text)
{
    return text.size() - std::count_if(text.begin(), text.end(), continuesCharacter);
}

QString firstCharacters(const QString &text, qsizetype count)
{
    qsizetype end = 0;
    for (; end < text.size(); ++end) {
        if (!continuesCharacter(text[end]) && --count < 0)
            break;
    }
    return text.left(end);
}

} // namespace Engine
