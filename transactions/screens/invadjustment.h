#pragma once

#include "transactions/screens/documentscreen.h"

namespace Ui {
class TfrmInvAdjustment;
}

namespace Tallymere {

class AdjustmentEntry;

// "Inventory Adjustment": enters corrections of what is on hand at one location. "+" and "-" step the date.
class TfrmInvAdjustment final : public DocumentScreen
{
    Q_OBJECT

public:
    TfrmInvAdjustment(ScreenContext &context, QWidget *parent);
    ~TfrmInvAdjustment() override;

protected:
    void firstShown() override { sizeForLines(); }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    AdjustmentEntry &adjustment() const;

    std::unique_ptr<Ui::TfrmInvAdjustment> m_ui;
};

} // namespace Tallymere
