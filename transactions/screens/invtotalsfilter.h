#pragma once

#include "transactions/screens/stockfilterdialog.h"

class QComboBox;

namespace Tallymere {

class OptionalDate;

// "Inventory Totals Filter": also by what is on hand, and by how long nothing has moved.
class TfrmInvTotalsFilter final : public StockFilterDialog
{
    Q_OBJECT

public:
    TfrmInvTotalsFilter(ScreenContext &context, QWidget *parent);

    QString expression() const override;
    void chooseBelowZero(); // and nothing else

private:
    QComboBox *m_stock;
    OptionalDate *m_notMovedSince;
};

} // namespace Tallymere
