#pragma once

#include "base/prompts.h"

#include <optional>
#include <QString>

// What is refused and what is asked of figures that somebody enters: in the line of a document, in a count and in a file
// of either. Article numbers and bar codes do get into the column of the quantity.

namespace Tallymere {

struct EnteredFigures
{
    double quantity = 0;
    double cost = 0; // of a unit, as stored; 0 where there is none

    bool operator==(const EnteredFigures &) const = default;
};

// Refuses a quantity beyond 1,000,000,000,000 either way, for the column.
void requireSensibleQuantity(double quantity, const QString &column);

// Refuses figures whose amount, quantity times cost, is no amount of money.
void requireAmount(const EnteredFigures &figures, const QString &column);

// What is asked of a quantity from 1,000,000 on and of an amount from 1,000,000.00 on; nothing of smaller ones.
// Throws AmountTooLarge where it would have to name an amount that requireAmount() refuses.
std::optional<QString> questionOfLargeFigures(const EnteredFigures &figures);
std::optional<QString> questionOfLargeAmount(const EnteredFigures &figures); // of the amount alone

// Asks that, with Cancel as the default; SilentAbort with the column for Cancel.
void confirmLargeFigures(const EnteredFigures &figures, const QString &column, Prompts &prompts);

} // namespace Tallymere
