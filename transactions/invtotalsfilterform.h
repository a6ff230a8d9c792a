#pragma once

#include "controls/dialogscreen.h"

namespace Ui {
class TfrmInvTotalsFilter;
}

namespace Tallymere {

class RecordPair;

// "Inventory Totals Filter": an item, by number or from the list, and a location. Made once for its screen.
class TfrmInvTotalsFilter final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmInvTotalsFilter(ScreenContext &context, QWidget *parent);
    ~TfrmInvTotalsFilter() override;

    // The choices, each 0 when not made. Known after OK; Cancel takes back what has been chosen since it was opened.
    int itemId() const;
    int warehouseId() const;

    void btnOKClick();
    void btnResetClick();
    void reject() override;

protected:
    void showStep() override;
    QWidget *widgetOfColumn(const QString &column) const override;

private:
    void choose(int itemId, int warehouseId);

    std::unique_ptr<Ui::TfrmInvTotalsFilter> m_ui;
    RecordPair *m_item;
    int m_itemInForce = 0; // when it was opened
    int m_warehouseInForce = 0;
};

} // namespace Tallymere
