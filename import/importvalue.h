#pragma once

#include "import/importkind.h"

namespace Tallymere {

// The value that the text of a field stands for; null for an empty text, and for blanks that are to be no text. Numbers with "." as decimal point, dates
// YYYY-MM-DD, Booleans true or false. How else a file of somebody's spreadsheet program may have them, the reading
// tells: a number with a decimal comma, but then no point as well; yes and no, also in the language of the user.
// Throws RuleError for what does not fit the column.
struct ValueReading
{
    bool mayHaveDecimalComma = false;
    bool takesYesAndNo = false;
};
Engine::Value importValue(const ImportColumn &column, const QString &text, ValueReading reading = {});

} // namespace Tallymere
