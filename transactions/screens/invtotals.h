#pragma once

#include "transactions/screens/stockvaluesum.h"
#include "transactions/screens/stockviewscreen.h"

namespace Tallymere {

// "Inventory Totals": the quantity on hand of every item at every location. Changes no data.
class TfrmInvTotals final : public StockViewScreen
{
    Q_OBJECT

public:
    TfrmInvTotals(ScreenContext &context, QWidget *parent);
    ~TfrmInvTotals() override;

    void showWaiting() override; // what is below zero

protected:
    StockFilterDialog *makeFilterDialog() override;
    void showStep() override;

private:
    ListDescription description();

    TotalsView m_view;
    std::optional<StockValueSum> m_sum;
};

} // namespace Tallymere
