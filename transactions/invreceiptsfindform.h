#pragma once

#include "controls/dialogscreen.h"

namespace Ui {
class TfrmInvReceiptsFind;
}

namespace Tallymere {

class ReceiptList;

// "Find Receipt": moves the list to a receipt number.
class TfrmInvReceiptsFind final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmInvReceiptsFind(ScreenContext &context, ReceiptList &list, QWidget *parent);
    ~TfrmInvReceiptsFind() override;

    void btnOKClick();

protected:
    QWidget *widgetOfColumn(const QString &column) const override;

private:
    std::unique_ptr<Ui::TfrmInvReceiptsFind> m_ui;
    ReceiptList &m_list;
};

} // namespace Tallymere
