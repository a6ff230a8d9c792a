#include "master/masterkinds.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"locations"_s;
    kind.oneName = u"location"_s;
    kind.table = u"Warehse"_s;
    kind.keyField = u"WarehouseID"_s;
    kind.nameFields = {u"WarehouseName"_s};

    kind.record.screen = u"frmWarehouseInv"_s;
    kind.record.caption = MasterTexts::tr("Location");
    kind.record.newCaption = MasterTexts::tr("New Location");
    kind.record.required = {{u"WarehouseName"_s, MasterTexts::tr("Field 'Location Name' must have a value")}};
    kind.record.taken = MasterTexts::tr("That Location already exists");

    kind.list.screen = u"frmWarehousesInv"_s;
    kind.list.caption = MasterTexts::tr("Locations");
    kind.list.columns = {{u"WarehouseName"_s, MasterTexts::tr("Name"), 320}};
    kind.list.orders = {{u"WarehouseName1"_s}};
    kind.list.refusals = {
        {u"IHist"_s, {u"WarehouseID"_s}, MasterTexts::tr("History exists for this location")},
        {u"IReceipt"_s, {u"WarehouseID"_s}, MasterTexts::tr("Receipts exist for this location")},
        {u"IAdjust"_s, {u"WarehouseID"_s}, MasterTexts::tr("Adjustments exist for this location")}};
    kind.list.ownedTables = {u"IBalance"_s};

    kind.command.action = u"ActionEditLocations"_s;
    kind.command.caption = MasterTexts::tr("Edit Locations");
    kind.command.rights = u"Warehouses"_s;

    kind.files.systemFields = {u"WarehouseID"_s, u"Location_ID"_s};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::location()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
