#pragma once

#include <QString>

namespace Tallymere {

// For hosts and for modules of theirs; nothing here calls it.
//
// The brand of a payment card: "enRoute", "Switch", "Solo" and "Discover" by length and prefix alone, "MASTERCARD",
// "VISA", "AMEX" and "Diners Club" when the check digit is right too. Empty for any other number. Blanks are left
// out of account.
QString validateCC(const QString &number);

} // namespace Tallymere
