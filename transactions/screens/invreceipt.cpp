#include "transactions/screens/invreceipt.h"

#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"
#include "data/fields.h"
#include "data/lookupsdatainv.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/kinds/receiptentry.h"
#include "ui_invreceipt.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmInvReceipt::TfrmInvReceipt(ScreenContext &context, QWidget *parent)
    : DocumentScreen(context, DocumentKinds::receipt(), parent)
    , m_ui(std::make_unique<Ui::TfrmInvReceipt>())
{
    m_ui->setupUi(this);
    m_ui->cboVendor->setList(context.lookups.tblVendor(),
                             {{Fields::VendorName, tr("Vendor"), 220}, {Fields::VendorNo, tr("Vendor no."), 80}},
                             guard());
    m_ui->cboWarehouse->setList(context.lookups.tblWarehse(), {{Fields::WarehouseName, tr("Warehouse"), 200}},
                                guard());
    buildDocument();
    binder().setEntryRule(Fields::VendorNo,
                          [this](const QString &text) { receipt().chooseVendorByNumber(text.trimmed()); });
}

TfrmInvReceipt::~TfrmInvReceipt() = default;

ReceiptEntry &TfrmInvReceipt::receipt() const { return static_cast<ReceiptEntry &>(entry()); }

// With a vendor number typed, Enter passes over the list of vendors.
bool TfrmInvReceipt::takeKey(QKeyEvent *event)
{
    if (!isEnter(*event) || focusWidget() != m_ui->editVendorNo || m_ui->editVendorNo->text().isEmpty())
        return DocumentScreen::takeKey(event);
    m_ui->cboWarehouse->setFocus();
    return true;
}

} // namespace Tallymere
