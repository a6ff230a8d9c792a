#include "transactions/screens/invreceipt.h"

#include "controls/screenmetrics.h"
#include "controls/typing.h"
#include "data/lookupsdatainv.h"
#include "transactions/documentkinds.h"
#include "transactions/receiptentry.h"
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
                             {{u"VendorName"_s, tr("Vendor"), 220}, {u"VendorNo"_s, tr("Vendor no."), 80}},
                             guard());
    m_ui->cboWarehouse->setList(context.lookups.tblWarehse(), {{u"WarehouseName"_s, tr("Warehouse"), 200}},
                                guard());
    buildDocument();
    binder().setEntryRule(u"VendorNo"_s,
                          [this](const QString &text) { receipt().chooseVendorByNumber(text.trimmed()); });
}

TfrmInvReceipt::~TfrmInvReceipt() = default;

ReceiptEntry &TfrmInvReceipt::receipt() const { return static_cast<ReceiptEntry &>(entry()); }

void TfrmInvReceipt::showHeader()
{
    DocumentScreen::showHeader();
    m_ui->editVendorNo->setReadOnly(entry().isPosted());
}

bool TfrmInvReceipt::takeKey(QKeyEvent *event)
{
    if (focusWidget() == m_ui->editVendorNo && takeKeyOfVendorNo(*event))
        return true;
    return DocumentScreen::takeKey(event);
}

// With a vendor number typed, Enter passes over the list of vendors. The box of a posted receipt lets letters through,
// and says what the other fields say.
bool TfrmInvReceipt::takeKeyOfVendorNo(const QKeyEvent &event)
{
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (enter && !m_ui->editVendorNo->text().isEmpty()) {
        m_ui->cboWarehouse->setFocus();
        return true;
    }
    if (!isTyped(event) || !entry().isPosted())
        return false;
    guard().run([this] { entry().header().edit(); });
    return true;
}

} // namespace Tallymere
