#include "master/masterscreensform.h"

#include "master/banksinvform.h"
#include "master/itemsinvform.h"
#include "master/itemtypeinvform.h"
#include "master/masterkinds.h"
#include "master/masterlistform.h"
#include "master/masterrecordform.h"
#include "master/vendorsform.h"
#include "master/warehousesinvform.h"
#include "ui_currencyinvform.h"
#include "ui_taxinvform.h"

namespace Tallymere {

namespace {

using TfrmCurrencyInv = MasterForm<MasterKinds::currency, Ui::TfrmCurrencyInv>;
using TfrmCurrenciesInv = MasterListOf<MasterKinds::currency, TfrmCurrencyInv>;
using TfrmTaxInv = MasterForm<MasterKinds::tax, Ui::TfrmTaxInv>;
using TfrmTaxesInv = MasterListOf<MasterKinds::tax, TfrmTaxInv>;

template <typename List> MasterListScreen *make(ScreenContext &context, QWidget *parent)
{
    return new List(context, parent);
}

} // namespace

const QList<MasterScreen> &masterScreens()
{
    static const QList<MasterScreen> screens = {
        {MasterKinds::item(), make<TfrmItemsInv>},         {MasterKinds::vendor(), make<TfrmVendors>},
        {MasterKinds::bank(), make<TfrmBanksInv>},         {MasterKinds::currency(), make<TfrmCurrenciesInv>},
        {MasterKinds::itemType(), make<TfrmItemTypesInv>}, {MasterKinds::location(), make<TfrmWarehousesInv>},
        {MasterKinds::tax(), make<TfrmTaxesInv>},
    };
    return screens;
}

} // namespace Tallymere
