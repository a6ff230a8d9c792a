#pragma once

#include "import/importkind.h"

namespace Tallymere {

// The value that the text of a field stands for; null for an empty text. Numbers with "." as decimal point, dates
// YYYY-MM-DD, Booleans true or false. Throws RuleError for what does not fit the column.
Engine::Value importValue(const ImportColumn &column, const QString &text);

} // namespace Tallymere
