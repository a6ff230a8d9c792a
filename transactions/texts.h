#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: TransactionsTexts::tr("...").
class TransactionsTexts
{
    Q_DECLARE_TR_FUNCTIONS(Transactions)
};

} // namespace Tallymere
