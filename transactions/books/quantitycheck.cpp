#include "transactions/books/quantitycheck.h"

#include "base/formats.h"
#include "base/rounding.h"
#include "base/ruleerror.h"
#include "engine/values/amounttoolarge.h"
#include "engine/values/linetext.h"
#include "transactions/texts.h"

#include <cmath>

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

constexpr double most = 1e12;
constexpr double large = 1e6;
constexpr Money largeAmount = Money::fromTenThousandths(1'000'000LL * 10'000);

QString costText(double cost) { return currencyFormat().display(Engine::Value(cost)); }

bool isLarge(Money amount) { return amount >= largeAmount || amount <= -largeAmount; }

} // namespace

void requireSensibleQuantity(double quantity, const QString &column)
{
    if (!(std::fabs(quantity) <= most))
        throw RuleError(
            TransactionsTexts::tr("A quantity of %1 cannot be meant. It may be %2 at most, or %3 at least.")
                .arg(Engine::excerpt(quantityText(quantity)), quantityText(most), quantityText(-most)),
            column);
}

void requireAmount(const EnteredFigures &figures, const QString &column)
{
    try {
        amountOf(figures.quantity, Money::fromDouble(figures.cost));
    } catch (const Engine::AmountTooLarge &) {
        throw RuleError(TransactionsTexts::tr("%1 at a cost of %2 each is more than an amount of money can be")
                            .arg(quantityText(figures.quantity), costText(figures.cost)),
                        column);
    }
}

std::optional<QString> questionOfLargeFigures(const EnteredFigures &figures)
{
    if (std::fabs(figures.quantity) >= large)
        return TransactionsTexts::tr("The quantity is %1. A number may have been scanned into the wrong column.\n"
                                     "Do you want to keep this quantity?")
            .arg(quantityText(figures.quantity));
    return questionOfLargeAmount(figures);
}

std::optional<QString> questionOfLargeAmount(const EnteredFigures &figures)
{
    const Money amount = amountOf(figures.quantity, Money::fromDouble(figures.cost));
    if (!isLarge(amount))
        return std::nullopt;
    return TransactionsTexts::tr(
               "%1 at a cost of %2 each come to %3. A number may have been scanned into the wrong "
               "column.\nDo you want to keep these figures?")
        .arg(quantityText(figures.quantity), costText(figures.cost), currencyText(amount));
}

void confirmLargeFigures(const EnteredFigures &figures, const QString &column, Prompts &prompts)
{
    const std::optional<QString> question = questionOfLargeFigures(figures);
    if (question && !prompts.confirm(Question::Warning, *question))
        throw SilentAbort(column);
}

} // namespace Tallymere
