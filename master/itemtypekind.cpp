#include "master/masterkinds.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"types"_s;
    kind.table = u"ItemType"_s;
    kind.keyField = u"ItemTypeID"_s;
    kind.nameFields = {u"TypeName"_s};

    kind.screen = u"frmItemTypeInv"_s;
    kind.caption = MasterTexts::tr("Item Type");
    kind.newCaption = MasterTexts::tr("New Item Type");
    kind.defaults = {{u"Inventory"_s, false}, {u"CostingMethod"_s, 1}};
    kind.required = {{u"TypeName"_s, MasterTexts::tr("Field 'Type Name' must have a value")}};
    kind.taken = MasterTexts::tr("Item Type already exists");

    kind.listScreen = u"frmItemTypesInv"_s;
    kind.listCaption = MasterTexts::tr("Item Types");
    kind.columns = {{u"TypeName"_s, MasterTexts::tr("Name"), 320}};
    kind.orders = {{u"TypeName1"_s}};
    kind.prints = true;
    kind.systemKeys = 6;
    kind.systemRecord = MasterTexts::tr("System-defined Item Types can't be deleted!");
    kind.refusals = {{u"Item"_s, {u"ItemTypeID"_s}, MasterTexts::tr("Item(s) exist for this item type")}};

    kind.action = u"ActionEditItemTypes"_s;
    kind.actionCaption = MasterTexts::tr("Edit Item Types");
    kind.rights = u"ItemTypes/Item Types"_s;

    kind.systemFields = {u"ItemTypeID"_s};
    kind.limits = {{u"CostingMethod"_s, 1, 2}};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::itemType()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
