#include "engine/values/foldedtext.h"

#include <algorithm>

namespace Engine {

namespace {

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.unicode() < 0x80; });
}

// Those that stand over or under letters of European alphabets. Signs of other scripts are letters of their own.
bool isAccent(QChar letter) { return letter.unicode() >= 0x300 && letter.unicode() <= 0x36f; }

// In capitals first: of "ß" there is none but "SS".
QString decomposed(const QString &text)
{
    return text.toUpper().toCaseFolded().normalized(QString::NormalizationForm_D);
}

} // namespace

QString foldedText(const QString &text)
{
    return isAscii(text) ? text.toLower() : decomposed(text).normalized(QString::NormalizationForm_C);
}

QString plainText(const QString &text)
{
    if (isAscii(text))
        return text.toLower();
    QString plain = decomposed(text);
    plain.removeIf(isAccent);
    return plain.normalized(QString::NormalizationForm_C);
}

} // namespace Engine
