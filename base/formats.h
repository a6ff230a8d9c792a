#pragma once

#include "base/regionalsettings.h"
#include "engine/values/field.h"
#include "engine/values/money.h"

#include <functional>
#include <optional>
#include <QString>

// How fields are shown, edited and read: the makers that every screen, list and import uses. In all of them an
// empty text is a null and a null is an empty text; text that cannot be read throws RuleError.

namespace Tallymere {

// Shown "#,###,##0.00#;(#,###,##0.00#)", edited "0.00#". The column goes into the errors.
Engine::FieldFormat currencyFormat(const RegionalSettings &settings = RegionalSettings::system(),
                                   const QString &column = {});

// Shown "1,234.5", with fifteen significant digits at most, as many as are the user's own: further ones are noise of
// calculations. Edited with the shortest digits that read back the same.
Engine::FieldFormat quantityFormat(const RegionalSettings &settings = RegionalSettings::system(),
                                   const QString &column = {});
// As it is shown.
QString quantityText(double quantity);

// Shown "dd mmm yy" (in other languages than English as it is edited), edited as a short date with a two-digit year, read by date2000. A text without any digit (an
// empty mask) is a null. Where it is known what day it is, day and month alone will do.
Engine::FieldFormat dateFormat(const RegionalSettings &settings = RegionalSettings::system(),
                               const QString &column = {}, const std::function<QDate()> &today = {});

// How a text that is no number is refused: as any other number that does not fit, or by what it is.
enum class NoNumber { AsWrongNumber, AsNoInteger };

// Shown in full, edited as its last two digits. 50 to 99 are read as 1950 to 1999, 0 to 49 as 2000 to 2049; any
// other number is refused with the message.
Engine::FieldFormat twoDigitYearFormat(const QString &message, const QString &column = {},
                                       NoNumber noNumber = NoNumber::AsWrongNumber);

// A number from 1 to 12. The label is what the message calls the field.
Engine::FieldFormat periodNumberFormat(const QString &label, const QString &column = {});

// Text of letters only, as its field's mask takes it. What is stored otherwise stays until it is typed over.
Engine::FieldFormat lettersFormat(const QString &label, const QString &column = {});

// The year that two typed digits stand for (0 to 99), by the rule above.
int yearOfTwoDigits(int digits);

// The year that is meant by two digits, or by the year in full (1900 to 9999); nothing for any other number.
std::optional<int> yearFromNumber(qint64 number);

// "1,234.50", "(0.125)": two decimals always, more as far as they are needed, up to the given number; beyond it
// half is rounded away from zero. A value that rounds to zero has no parentheses.
QString currencyText(Engine::Money value, const RegionalSettings &settings = RegionalSettings::system(),
                     int mostDecimals = 3);

// The same without grouping and with a minus sign, for editing.
QString currencyEditText(Engine::Money value, const RegionalSettings &settings = RegionalSettings::system(),
                         int mostDecimals = 3);

// "24 Nov 26", "24.11.26"; an empty text for an invalid date.
QString dateText(QDate date, const RegionalSettings &settings = RegionalSettings::system());

// Asks about a date that is more than a year away.
QString distantDateQuestion(QDate date, const RegionalSettings &settings = RegionalSettings::system());

// A fiscal period: "3/2004".
QString periodText(int period, int year);

} // namespace Tallymere
