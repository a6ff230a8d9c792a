#pragma once

#include <QString>

namespace Engine {

// Sizes of text fields count characters as a reader does, not UTF-16 units: one outside the basic plane counts once.

// What no field takes more of, a memo included. Larger texts are refused before anything else is done with them.
constexpr qsizetype longestText = 1'000'000;

qsizetype characterCount(const QString &text);

// The text's first characters, as many as there are up to the count; none is split.
QString firstCharacters(const QString &text, qsizetype count);

} // namespace Engine
