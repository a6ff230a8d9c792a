#pragma once

#include "transactions/screens/documentscreen.h"

namespace Ui {
class TfrmInvReceipt;
}

namespace Tallymere {

class ReceiptEntry;

// "Inventory Receipt": enters goods received from a vendor into one location.
class TfrmInvReceipt final : public DocumentScreen
{
    Q_OBJECT

public:
    TfrmInvReceipt(ScreenContext &context, QWidget *parent);
    ~TfrmInvReceipt() override;

protected:
    bool takeKey(QKeyEvent *event) override;

private:
    ReceiptEntry &receipt() const;

    std::unique_ptr<Ui::TfrmInvReceipt> m_ui;
};

} // namespace Tallymere
