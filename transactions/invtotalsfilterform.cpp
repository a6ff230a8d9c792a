#include "transactions/invtotalsfilterform.h"

#include "data/lookupsdatainv.h"
#include "master/masterkinds.h"
#include "master/recordpairform.h"
#include "ui_invtotalsfilterform.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmInvTotalsFilter::TfrmInvTotalsFilter(ScreenContext &context, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmInvTotalsFilter>())
{
    m_ui->setupUi(this);
    m_item = new RecordPair(m_ui->editItem, m_ui->cboItem, MasterKinds::item(), context.lookups.tblItem(), guard());
    m_ui->cboWarehouse->setList(context.lookups.tblWarehse(), u"WarehouseID"_s,
                                {{u"WarehouseName"_s, tr("Location"), 240}}, guard());
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &TfrmInvTotalsFilter::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connectGuarded(m_ui->btnReset, &QPushButton::clicked, this, &TfrmInvTotalsFilter::btnResetClick);
}

TfrmInvTotalsFilter::~TfrmInvTotalsFilter() = default;

int TfrmInvTotalsFilter::itemId() const { return m_item->key(); }

int TfrmInvTotalsFilter::warehouseId() const { return m_ui->cboWarehouse->chosenId(); }

void TfrmInvTotalsFilter::btnOKClick()
{
    m_item->settle();
    m_ui->cboWarehouse->settle();
    accept();
}

void TfrmInvTotalsFilter::btnResetClick() { choose(0, 0); }

void TfrmInvTotalsFilter::choose(int itemId, int warehouseId)
{
    m_item->choose(itemId);
    m_ui->cboWarehouse->setChosenId(warehouseId);
}

void TfrmInvTotalsFilter::showStep()
{
    m_itemInForce = itemId();
    m_warehouseInForce = warehouseId();
    m_ui->editItem->setFocus();
}

void TfrmInvTotalsFilter::reject()
{
    guard().run([this] { choose(m_itemInForce, m_warehouseInForce); });
    DialogScreen::reject();
}

QWidget *TfrmInvTotalsFilter::widgetOfColumn(const QString &) const { return m_ui->editItem; }

} // namespace Tallymere
