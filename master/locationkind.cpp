#include "master/masterkinds.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("Tallymere::Locations", text); }

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"locations"_s;
    kind.table = u"Warehse"_s;
    kind.keyField = u"WarehouseID"_s;
    kind.nameFields = {u"WarehouseName"_s};

    kind.screen = u"frmWarehouseInv"_s;
    kind.caption = tr("Location");
    kind.newCaption = tr("New Location");
    kind.required = {{u"WarehouseName"_s, tr("Field 'Location Name' must have a value")}};
    kind.taken = tr("That Location already exists");

    kind.listScreen = u"frmWarehousesInv"_s;
    kind.listCaption = tr("Locations");
    kind.columns = {{u"WarehouseName"_s, tr("Name"), 320}};
    kind.orders = {{u"WarehouseName1"_s}};
    kind.refusals = {{u"IHist"_s, {u"WarehouseID"_s}, tr("History exists for this location")},
                     {u"IReceipt"_s, {u"WarehouseID"_s}, tr("Receipts exist for this location")},
                     {u"IAdjust"_s, {u"WarehouseID"_s}, tr("Adjustments exist for this location")}};
    kind.ownedTables = {u"IBalance"_s};

    kind.action = u"ActionEditLocations"_s;
    kind.actionCaption = tr("Edit Locations");
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
