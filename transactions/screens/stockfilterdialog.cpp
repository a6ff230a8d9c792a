#include "transactions/screens/stockfilterdialog.h"

#include "controls/fields/lookupcombobox.h"
#include "data/lookupsdatainv.h"
#include "master/masterkinds.h"
#include "master/screens/recordpair.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int numberWidth = 140; // design pixels
const auto locationBox = u"cboWarehouse"_s;
} // namespace

StockFilterDialog::StockFilterDialog(ScreenContext &context, const FilterDialogKind &kind, QWidget *parent)
    : FilterDialog(context, kind, parent)
{
    auto *number = new QLineEdit(this);
    number->setObjectName(u"editItem"_s);
    number->setAccessibleName(tr("Item no."));
    number->setMaximumWidth(numberWidth);
    auto *description = new LookupComboBox(this);
    description->setObjectName(u"cboItem"_s);
    description->setAccessibleName(tr("Item description"));
    m_item = new RecordPair(number, description, MasterKinds::item(), context.lookups.tblItem(), guard());
    addRow(tr("Item &no.:"), number);
    addRow(tr("&Description:"), description);
    addChoice({.name = number->objectName(),
               .chosen = [this] { return m_item->key(); },
               .choose = [this](const QVariant &item) { m_item->choose(item.toInt()); },
               .none = 0,
               .words = [this] { return labelled(tr("Item"), m_item->text()); },
               .settle = [this] { m_item->settle(); },
               .isThere = [this, &items = context.lookups.tblItem()] { return isThereNow(items, m_item->key()); }});
    addBox({.name = locationBox, .label = tr("&Location:"), .list = u"Warehse"_s});
}

int StockFilterDialog::itemId() const { return m_item->key(); }

void StockFilterDialog::setItemId(int itemId) { m_item->choose(itemId); }

int StockFilterDialog::warehouseId() const { return key(locationBox); }

void StockFilterDialog::setWarehouseId(int warehouseId) { setKey(locationBox, warehouseId); }

void StockFilterDialog::preset(const QList<KeyOfField> &keys)
{
    for (const KeyOfField &of : keys) {
        if (of.field == "ItemID"_L1)
            setItemId(of.key);
        else if (of.field == "WarehouseID"_L1)
            setWarehouseId(of.key);
    }
}

QWidget *StockFilterDialog::widgetOfColumn(const QString &) const { return m_item->numberBox(); }

} // namespace Tallymere
