#pragma once

#include "engine/store/sqlcondition.h"

namespace Engine {

class Dialect;

// The condition that a text column contains a text, in whatever letter case of whatever alphabet, as foldedtext.h says: a
// letter without an accent stands for those with one, too. It is a pattern that names the letters one by one, so that both
// stores take the same ones whatever they know of alphabets. Letters that are stored as two characters are not found.
SqlCondition contains(const Dialect &dialect, const SqlCondition &column, const QString &text);

QString containedGlob(const QString &text); // the pattern as SQLite takes it, the longer one of the two

} // namespace Engine
