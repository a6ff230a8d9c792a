#include "master/screens/masterscreens.h"

#include "master/masterkinds.h"
#include "master/screens/banksinv.h"
#include "master/screens/iteminv.h"
#include "master/screens/itemsinv.h"
#include "master/screens/itemtypeinv.h"
#include "master/screens/masterlistscreen.h"
#include "master/screens/masterrecordscreen.h"
#include "master/screens/vendor.h"
#include "master/screens/vendors.h"
#include "master/screens/warehousesinv.h"
#include "ui_bankinv.h"
#include "ui_currencyinv.h"
#include "ui_taxinv.h"
#include "ui_warehouseinv.h"

namespace Tallymere {

namespace {

using TfrmCurrencyInv = MasterForm<MasterKinds::currency, Ui::TfrmCurrencyInv>;
using TfrmCurrenciesInv = MasterListOf<MasterKinds::currency, TfrmCurrencyInv>;
using TfrmTaxInv = MasterForm<MasterKinds::tax, Ui::TfrmTaxInv>;
using TfrmTaxesInv = MasterListOf<MasterKinds::tax, TfrmTaxInv>;

template <typename List, typename Record> MasterScreen describe(const MasterKind &kind)
{
    return {kind, [](ScreenContext &context, QWidget *parent) { return new List(context, parent); },
            RecordScreens::makes<Record>()};
}

} // namespace

const QList<MasterScreen> &masterScreens()
{
    static const QList<MasterScreen> screens = {
        describe<TfrmItemsInv, TfrmItemInv>(MasterKinds::item()),
        describe<TfrmVendors, TfrmVendor>(MasterKinds::vendor()),
        describe<TfrmBanksInv, TfrmBankInv>(MasterKinds::bank()),
        describe<TfrmCurrenciesInv, TfrmCurrencyInv>(MasterKinds::currency()),
        describe<TfrmItemTypesInv, TfrmItemTypeInv>(MasterKinds::itemType()),
        describe<TfrmWarehousesInv, TfrmWarehouseInv>(MasterKinds::location()),
        describe<TfrmTaxesInv, TfrmTaxInv>(MasterKinds::tax()),
    };
    return screens;
}

} // namespace Tallymere
