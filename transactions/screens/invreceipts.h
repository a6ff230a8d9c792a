#pragma once

#include "transactions/screens/documentlistscreen.h"

namespace Tallymere {

// "Inventory Receipts": the list of all receipts. Closing it offers to post what is pending.
class TfrmInvReceipts final : public DocumentListScreen
{
    Q_OBJECT

public:
    TfrmInvReceipts(ScreenContext &context, QWidget *parent);

protected:
    void closeEvent(QCloseEvent *event) override;
};

} // namespace Tallymere
