#include "master/screens/itemtypeinv.h"

#include "data/fields.h"
#include "ui_itemtypeinv.h"

namespace Tallymere {

TfrmItemTypeInv::TfrmItemTypeInv(ScreenContext &context, QWidget *parent)
    : MasterRecordScreen(context, MasterKinds::itemType(), parent)
    , m_ui(std::make_unique<Ui::TfrmItemTypeInv>())
{
    m_ui->setupUi(this);
    buildRecord();
    // The click may have been taken back already, because another user is editing the type.
    connect(m_ui->chkInventory, &QCheckBox::clicked, this,
            [this] { m_ui->radioCostingMethod->setEnabled(m_ui->chkInventory->isChecked()); });
}

TfrmItemTypeInv::~TfrmItemTypeInv() = default;

void TfrmItemTypeInv::showRecord()
{
    m_ui->radioCostingMethod->setEnabled(record().table().boolean(Fields::Inventory));
}

} // namespace Tallymere
