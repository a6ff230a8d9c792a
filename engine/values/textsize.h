#pragma once

#include <QString>

namespace Engine {

// Sizes of text fields count characters as a reader does, not UTF-16 units: one outside the basic plane counts once.

qsizetype characterCount(const QString &text);

// The text's first characters, as many as there are up to the count; none is split.
QString firstCharacters(const QString &text, qsizetype count);

} // namespace Engine
