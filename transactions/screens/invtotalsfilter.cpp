#include "transactions/screens/invtotalsfilter.h"

#include "controls/lookupcombobox.h"
#include "data/lookupsdatainv.h"
#include "master/masterkinds.h"
#include "master/screens/recordpair.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmInvTotalsFilter::TfrmInvTotalsFilter(ScreenContext &context, QWidget *parent)
    : FilterDialog(context, {.name = u"frmInvTotalsFilter"_s, .caption = tr("Inventory Totals Filter")}, parent)
{
    auto *number = new QLineEdit(this);
    number->setObjectName(u"editItem"_s);
    number->setAccessibleName(tr("Item no."));
    number->setMaximumWidth(140); // design pixels
    auto *description = new LookupComboBox(this);
    description->setObjectName(u"cboItem"_s);
    description->setAccessibleName(tr("Item description"));
    m_item = new RecordPair(number, description, MasterKinds::item(), context.lookups.tblItem(), guard());
    addRow(tr("Item &no.:"), number);
    addRow(tr("&Description:"), description);
    addChoice({.chosen = [this] { return m_item->key(); },
               .choose = [this](const QVariant &item) { m_item->choose(item.toInt()); },
               .none = 0,
               .settle = [this] { m_item->settle(); }});
    addBox({.name = u"cboWarehouse"_s, .label = tr("&Location:"), .list = u"Warehse"_s});
}

int TfrmInvTotalsFilter::itemId() const { return m_item->key(); }

int TfrmInvTotalsFilter::warehouseId() const { return key(u"cboWarehouse"_s); }

QWidget *TfrmInvTotalsFilter::widgetOfColumn(const QString &) const { return m_item->numberBox(); }

} // namespace Tallymere
