#include "master/masterkinds.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"locations"_s;
    kind.table = u"Warehse"_s;
    kind.keyField = u"WarehouseID"_s;
    kind.nameFields = {u"WarehouseName"_s};

    kind.screen = u"frmWarehouseInv"_s;
    kind.caption = MasterTexts::tr("Location");
    kind.newCaption = MasterTexts::tr("New Location");
    kind.required = {{u"WarehouseName"_s, MasterTexts::tr("Field 'Location Name' must have a value")}};
    kind.taken = MasterTexts::tr("That Location already exists");

    kind.listScreen = u"frmWarehousesInv"_s;
    kind.listCaption = MasterTexts::tr("Locations");
    kind.columns = {{u"WarehouseName"_s, MasterTexts::tr("Name"), 320}};
    kind.orders = {{u"WarehouseName1"_s}};
    kind.refusals = {{u"IHist"_s, {u"WarehouseID"_s}, MasterTexts::tr("History exists for this location")},
                     {u"IReceipt"_s, {u"WarehouseID"_s}, MasterTexts::tr("Receipts exist for this location")},
                     {u"IAdjust"_s, {u"WarehouseID"_s}, MasterTexts::tr("Adjustments exist for this location")}};
    kind.ownedTables = {u"IBalance"_s};

    kind.action = u"ActionEditLocations"_s;
    kind.actionCaption = MasterTexts::tr("Edit Locations");
    kind.rights = u"Warehouses"_s;

    kind.systemFields = {u"WarehouseID"_s, u"Location_ID"_s};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::location()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
