#include "data/fields.h"
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
    kind.keyField = Fields::WarehouseID;
    kind.nameFields = {Fields::WarehouseName};

    kind.record.screen = u"frmWarehouseInv"_s;
    kind.record.caption = MasterTexts::tr("Location");
    kind.record.newCaption = MasterTexts::tr("New Location");
    kind.record.comesInNumbers = true;
    kind.record.required = {{Fields::WarehouseName, MasterTexts::tr("Field 'Location Name' must have a value")}};
    kind.record.taken = MasterTexts::tr("That Location already exists");

    kind.list.screen = u"frmWarehousesInv"_s;
    kind.list.caption = MasterTexts::tr("Locations");
    kind.list.columns = {{Fields::WarehouseName, MasterTexts::tr("Name"), 320}};
    kind.list.orders = {{u"WarehouseName1"_s}};
    kind.list.refusals = {
        {u"IHist"_s, {Fields::WarehouseID}, MasterTexts::tr("History exists for this location")},
        {u"IReceipt"_s, {Fields::WarehouseID}, MasterTexts::tr("Receipts exist for this location")},
        {u"IAdjust"_s, {Fields::WarehouseID}, MasterTexts::tr("Adjustments exist for this location")}};
    kind.list.ownedTables = {u"IBalance"_s};

    kind.command.action = u"ActionEditLocations"_s;
    kind.command.caption = MasterTexts::tr("Edit Locations");
    kind.command.rights = u"Warehouses"_s;
    kind.command.glyph = Glyph::Location;

    kind.files.systemFields = {Fields::WarehouseID, Fields::Location_ID};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::location()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
