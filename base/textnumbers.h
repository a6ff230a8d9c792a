#pragma once

#include "base/regionalsettings.h"

#include <QString>

// Numbers typed by people. Blanks around a number do not matter; what is no number, or is too large for its type,
// throws RuleError with the text in question and the column given.

namespace Tallymere {

// A whole number of 32 bits: "'12x' is not a whole number".
int integerFromText(const QString &text, const QString &column = {});

// What to say behind the refusal of a text whose digits have another decimal sign than is expected:
// " (the decimal sign is '.', as in 1234.5)". Of other texts nothing.
QString decimalSignHint(const QString &text, QChar decimalPoint);

// A decimal number with the user's decimal point and, in complete groups of three digits, the group separator. No
// exponents, nothing infinite: "'1,5' is not a number".
double numberFromText(const QString &text, const RegionalSettings &settings = RegionalSettings::system(),
                      const QString &column = {});

// A number as programs show one, as it would be typed: without a currency sign, with a minus instead of parentheses, and
// with the user's group separator where any blank stands for one.
QString numberAsTyped(const QString &shown, const RegionalSettings &settings = RegionalSettings::system());

} // namespace Tallymere
