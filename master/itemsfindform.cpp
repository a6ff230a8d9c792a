#include "master/itemsfindform.h"

#include "data/lookupsdatainv.h"
#include "master/itempairform.h"
#include "master/itemsearch.h"
#include "ui_itemsfindform.h"

namespace Tallymere {

TfrmItemsFind::TfrmItemsFind(ScreenContext &context, Engine::DataSet &list, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmItemsFind>())
    , m_list(list)
{
    m_ui->setupUi(this);
    m_item = new ItemPair(m_ui->editItem, m_ui->cboItem, context.lookups.tblItem(), guard());
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &TfrmItemsFind::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmItemsFind::~TfrmItemsFind() = default;

void TfrmItemsFind::btnOKClick()
{
    if (const int itemId = m_item->settle(); itemId != 0)
        moveToItem(m_list, itemId, m_item->itemText());
    accept();
}

QWidget *TfrmItemsFind::widgetOfColumn(const QString &) const { return m_ui->editItem; }

} // namespace Tallymere
