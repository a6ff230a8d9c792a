#pragma once

#include "controls/screens/sheetwindow.h"
#include "insight/itemcard.h"

class QLabel;

namespace Tallymere {

class RowsGrid;

// Why an item costs what it costs: its posted receipts with quantity and average cost before and after each, and in
// words where that leads. Enter opens a receipt.
class TfrmCostTrail final : public SheetWindow
{
    Q_OBJECT

public:
    TfrmCostTrail(ScreenContext &context, const ItemCard &card, QWidget *parent);

    void print(); // to look at, and to be printed or saved from there

protected:
    void readAnew() override;

private:
    void layOut();
    void showTrail();
    void openReceipt(int row);

    const int m_item;
    const QString m_name;
    CostTrail m_trail;
    QLabel *m_verdict;
    RowsGrid *m_grid;
};

} // namespace Tallymere
