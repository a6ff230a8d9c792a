#pragma once

#include "transactions/historyview.h"
#include "transactions/screens/stockviewscreen.h"

namespace Tallymere {

// "Inventory History": the posted movements of stock, and the way to the documents that made them. Changes no data.
class TfrmInvHistory final : public StockViewScreen
{
    Q_OBJECT

public:
    TfrmInvHistory(ScreenContext &context, QWidget *parent);
    ~TfrmInvHistory() override;

    void mnuSourceClick(); // opens the document of the current row, if it has one that can be opened

protected:
    StockFilterDialog *makeFilterDialog() override;

private:
    ListDescription description();

    HistoryView m_view;
};

} // namespace Tallymere
