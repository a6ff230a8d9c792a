#include "transactions/documentfilterform.h"

#include "data/lookupsdatainv.h"
#include "ui_documentfilterform.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

DocumentFilterScreen::DocumentFilterScreen(ScreenContext &context, const QString &name, const QString &caption,
                                           QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::DocumentFilterScreen>())
{
    setObjectName(name);
    m_ui->setupUi(this);
    setWindowTitle(caption);
    m_ui->cboWarehouse->setList(context.lookups.tblWarehse(), u"WarehouseID"_s,
                                {{u"WarehouseName"_s, tr("Location"), 240}}, guard());
    connect(m_ui->btnOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connectGuarded(m_ui->btnReset, &QPushButton::clicked, this, &DocumentFilterScreen::btnResetClick);
}

DocumentFilterScreen::~DocumentFilterScreen() = default;

DocumentFilter DocumentFilterScreen::filter() const
{
    m_ui->cboWarehouse->settle();
    DocumentFilter filter{.warehouseId = m_ui->cboWarehouse->chosenId()};
    if (m_ui->optPostedYes->isChecked())
        filter.posted = DocumentFilter::Posted::Yes;
    else if (m_ui->optPostedNo->isChecked())
        filter.posted = DocumentFilter::Posted::No;
    return filter;
}

void DocumentFilterScreen::btnResetClick()
{
    m_ui->cboWarehouse->setChosenId(0);
    m_ui->optPostedAll->setChecked(true);
}

void DocumentFilterScreen::showStep() { m_ui->cboWarehouse->setFocus(); }

TfrmInvReceiptsFilter::TfrmInvReceiptsFilter(ScreenContext &context, QWidget *parent)
    : DocumentFilterScreen(context, u"frmInvReceiptsFilter"_s, tr("Inventory Receipts Filter"), parent)
{
}

} // namespace Tallymere
