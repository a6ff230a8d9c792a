#pragma once

#include <QString>

namespace Engine {

// Texts as they are compared where somebody looks for one: letter case does not count, in any alphabet, nor does whether
// an accented letter is stored as one character or as two.
QString foldedText(const QString &text);
QString plainText(const QString &text); // folded, and without the accents of European alphabets

} // namespace Engine
