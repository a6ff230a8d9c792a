#pragma once

#include "transactions/documents/historyview.h"
#include "transactions/screens/stockviewscreen.h"

namespace Tallymere {

// "Inventory History": the posted movements of stock, and the way to the documents that made them. Changes no data.
class TfrmInvHistory final : public StockViewScreen
{
    Q_OBJECT

public:
    TfrmInvHistory(ScreenContext &context, QWidget *parent);
    ~TfrmInvHistory() override;

    // Both open the document of the current row on the line of its item, if it has one. The source is none of usage.
    void mnuSourceClick();
    void mnuOpenDocumentClick();

protected:
    StockFilterDialog *makeFilterDialog() override;

private:
    ListDescription description();
    void open(const HistoryView::Source &source);

    HistoryView m_view;
};

} // namespace Tallymere
