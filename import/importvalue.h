#pragma once

#include "import/importkind.h"

namespace Tallymere {

// The value that the text of a field stands for; null for an empty text, and for blanks that are to be no text. Numbers with "." as decimal point, dates
// YYYY-MM-DD, Booleans true or false. A number may have a decimal comma where that is said, but then no point as well.
// Throws RuleError for what does not fit the column.
Engine::Value importValue(const ImportColumn &column, const QString &text, bool mayHaveDecimalComma = false);

} // namespace Tallymere
