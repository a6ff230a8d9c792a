#pragma once

#include "controls/listscreen.h"
#include "transactions/receiptlist.h"

#include <QPointer>

namespace Tallymere {

class TfrmInvReceipt;
class TfrmInvReceiptsFilter;

// "Inventory Receipts": the list of all receipts, from which they are entered, deleted and posted.
class TfrmInvReceipts final : public ListScreen
{
    Q_OBJECT

public:
    TfrmInvReceipts(ScreenContext &context, QWidget *parent);
    ~TfrmInvReceipts() override;

    void btnNewClick();
    void btnEditClick();
    void btnDeleteClick();
    void btnFilterClick();
    void btnFindClick();
    void mnuPostClick(); // works on a screen that is not shown as well

protected:
    void clearFilterDialog() override;
    void closeEvent(QCloseEvent *event) override; // offers to post what is pending

private:
    ListDescription description();
    TfrmInvReceipt *makeReceipt();

    ReceiptList m_list;
    QPointer<TfrmInvReceiptsFilter> m_filter;
};

} // namespace Tallymere
