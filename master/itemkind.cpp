#include "master/masterkinds.h"

#include "base/formats.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void formatFields(Engine::Table &item)
{
    for (const QString &field : {u"UnitPrice"_s, u"WgtAvgCost"_s, u"StandardCost"_s})
        item.field(field).format = currencyFormat(RegionalSettings::system(), field);
    item.field(u"TaxCodes").format = lettersFormat(MasterTexts::tr("Tax Codes"), u"TaxCodes"_s);
}

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"items"_s;
    kind.table = u"Item"_s;
    kind.keyField = u"ItemID"_s;
    kind.numberField = u"ItemNo"_s;
    kind.counterTable = u"ItemCtl"_s;
    kind.numberCounter = u"NextItemNo"_s;
    kind.keyCounter = u"NextItemID"_s;
    kind.nameFields = {u"ItemNo"_s, u"ItemDescription"_s};
    kind.formatFields = formatFields;

    kind.screen = u"frmItemInv"_s;
    kind.caption = MasterTexts::tr("Item");
    kind.newCaption = MasterTexts::tr("New Item");
    kind.defaults = {{u"Suspended"_s, false}};
    // Costs, suspension and accounts are the original's own.
    kind.copiedFields = {u"ItemDescription"_s, u"TaxCodes"_s, u"UnitPrice"_s, u"Notes"_s, u"ItemTypeID"_s};
    kind.copyCaption = MasterTexts::tr("New (copied) Item");
    kind.required = {{u"ItemNo"_s, MasterTexts::tr("Field 'Item no.' must have a value")},
                     {u"ItemDescription"_s, MasterTexts::tr("Field 'Description' must have a value")},
                     {u"ItemTypeID"_s, MasterTexts::tr("Field 'Item Type' must have a value")}};
    kind.references = {{u"ItemTypeID"_s, u"ItemType"_s, u"TypeName"_s,
                        MasterTexts::tr("Item Type no longer exists"),
                        MasterTexts::tr("Item type '%1' not found")}};
    kind.taken = MasterTexts::tr("Item no. already exists");
    kind.notFound = MasterTexts::tr("Item no. '%1' not found");

    kind.listScreen = u"frmItemsInv"_s;
    kind.listCaption = MasterTexts::tr("Items");
    kind.columns = {{u"ItemNo"_s, MasterTexts::tr("Item no."), 110},
                    {u"ItemDescription"_s, MasterTexts::tr("Description"), 300},
                    {u"UnitPrice"_s, MasterTexts::tr("Unit Price"), 110, Qt::AlignRight}};
    kind.orders = {{u"ItemNo"_s, MasterTexts::tr("&Item no."), u"mnuSortItemNo"_s},
                   {u"ItemDescription1"_s, MasterTexts::tr("&Description"), u"mnuSortDescription"_s}};
    kind.prints = true;
    kind.filterField = u"ItemTypeID"_s;
    kind.notSuspended = u"(Suspended = false)"_s;
    // Nothing keeps an item from being deleted, not even its movements.

    kind.action = u"ActionEditItems"_s;
    kind.actionCaption = MasterTexts::tr("Edit Items");
    kind.rights = u"Items"_s;
    kind.isMain = true;
    kind.reopening = MasterKind::Reopening::LiftFilter;

    kind.systemFields = {u"ItemID"_s, u"SalesGLAccountID"_s, u"COGSGLAccountID"_s, u"InventoryGLAccountID"_s,
                         u"UnitPrice"_s};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::item()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
