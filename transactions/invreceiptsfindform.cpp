#include "transactions/invreceiptsfindform.h"

#include "transactions/receiptlist.h"
#include "ui_invreceiptsfindform.h"

namespace Tallymere {

TfrmInvReceiptsFind::TfrmInvReceiptsFind(ScreenContext &context, ReceiptList &list, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmInvReceiptsFind>())
    , m_list(list)
{
    m_ui->setupUi(this);
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &TfrmInvReceiptsFind::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmInvReceiptsFind::~TfrmInvReceiptsFind() = default;

void TfrmInvReceiptsFind::btnOKClick()
{
    m_list.find(m_ui->editReceipt->text().trimmed());
    accept();
}

QWidget *TfrmInvReceiptsFind::widgetOfColumn(const QString &) const { return m_ui->editReceipt; }

} // namespace Tallymere
