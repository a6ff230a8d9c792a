#include "master/screens/masterscreens.h"

#include "master/masterkinds.h"
#include "master/screens/banksinv.h"
#include "master/screens/itemsinv.h"
#include "master/screens/itemtypeinv.h"
#include "master/screens/masterlistscreen.h"
#include "master/screens/masterrecordscreen.h"
#include "master/screens/vendors.h"
#include "master/screens/warehousesinv.h"
#include "ui_currencyinv.h"
#include "ui_taxinv.h"

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
