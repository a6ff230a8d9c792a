#include "data/fields.h"
#include "master/costing.h"
#include "master/masterkinds.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"types"_s;
    kind.oneName = u"type"_s;
    kind.table = u"ItemType"_s;
    kind.keyField = Fields::ItemTypeID;
    kind.nameFields = {Fields::TypeName};

    kind.record.screen = u"frmItemTypeInv"_s;
    kind.record.caption = MasterTexts::tr("Item Type");
    kind.record.newCaption = MasterTexts::tr("New Item Type");
    kind.record.comesInNumbers = true;
    kind.record.defaults = {{Fields::Inventory, false},
                            {Fields::CostingMethod, static_cast<int>(CostingMethod::Average)}};
    kind.record.required = {{Fields::TypeName, MasterTexts::tr("Field 'Type Name' must have a value")}};
    kind.record.taken = MasterTexts::tr("Item Type already exists");

    kind.list.screen = u"frmItemTypesInv"_s;
    kind.list.caption = MasterTexts::tr("Item Types");
    kind.list.columns = {{Fields::TypeName, MasterTexts::tr("Name"), 320}};
    kind.list.orders = {{u"TypeName1"_s}};
    kind.list.report = u"TrptItemTypes"_s;
    kind.list.systemKeys = 6;
    kind.list.systemRecord = MasterTexts::tr("System-defined Item Types can't be deleted!");
    kind.list.refusals = {{u"Item"_s, {Fields::ItemTypeID}, MasterTexts::tr("Item(s) exist for this item type")}};

    kind.command.action = u"ActionEditItemTypes"_s;
    kind.command.caption = MasterTexts::tr("Edit Item Types");
    kind.command.rights = u"ItemTypes/Item Types"_s;

    kind.files.systemFields = {Fields::ItemTypeID};
    kind.files.limits = {{Fields::CostingMethod, static_cast<int>(CostingMethod::Average),
                          static_cast<int>(CostingMethod::Standard)}};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::itemType()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
