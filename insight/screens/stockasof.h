#pragma once

#include "insight/stockasofview.h"
#include "transactions/screens/stockvaluesum.h"
#include "transactions/screens/stockviewscreen.h"

namespace Tallymere {

// "Stock as of ...": the quantity of every item at every location at the end of a day or of a fiscal period, worked out
// from the history. Begins with the end of the period before the current one.
class TfrmStockAsOf final : public StockViewScreen
{
    Q_OBJECT

public:
    TfrmStockAsOf(ScreenContext &context, QWidget *parent);
    ~TfrmStockAsOf() override;

    void refreshList() override; // with what has come later by now
    void mnuTimeClick();
    void mnuPrintClick();

protected:
    StockFilterDialog *makeFilterDialog() override;

private:
    ListDescription description();
    void showTime(const StockTime &time);

    StockAsOfView m_view;
    std::optional<StockValueSum> m_sum;
};

} // namespace Tallymere
