#pragma once

#include "transactions/screens/stockfilterdialog.h"

namespace Tallymere {

// "Inventory Totals Filter".
class TfrmInvTotalsFilter final : public StockFilterDialog
{
    Q_OBJECT

public:
    TfrmInvTotalsFilter(ScreenContext &context, QWidget *parent);

    QString expression() const override;
};

} // namespace Tallymere
