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
    kind.oneName = u"item"_s;
    kind.table = u"Item"_s;
    kind.keyField = u"ItemID"_s;
    kind.numberField = u"ItemNo"_s;
    kind.record.counterTable = u"ItemCtl"_s;
    kind.record.numberCounter = u"NextItemNo"_s;
    kind.record.keyCounter = u"NextItemID"_s;
    kind.nameFields = {u"ItemNo"_s, u"ItemDescription"_s};
    kind.formatFields = formatFields;

    kind.record.screen = u"frmItemInv"_s;
    kind.record.caption = MasterTexts::tr("Item");
    kind.record.newCaption = MasterTexts::tr("New Item");
    kind.record.defaults = {{u"Suspended"_s, false}};
    // Costs, suspension and accounts are the original's own.
    kind.record.copiedFields = {u"ItemDescription"_s, u"TaxCodes"_s, u"UnitPrice"_s, u"Notes"_s, u"ItemTypeID"_s};
    kind.record.copyCaption = MasterTexts::tr("New (copied) Item");
    kind.record.required = {{u"ItemNo"_s, MasterTexts::tr("Field 'Item no.' must have a value")},
                            {u"ItemDescription"_s, MasterTexts::tr("Field 'Description' must have a value")},
                            {u"ItemTypeID"_s, MasterTexts::tr("Field 'Item Type' must have a value")}};
    kind.record.references = {{u"ItemTypeID"_s, u"ItemType"_s, u"TypeName"_s,
                               MasterTexts::tr("Item Type no longer exists"),
                               MasterTexts::tr("Item type '%1' not found")}};
    kind.record.taken = MasterTexts::tr("Item no. already exists");
    kind.record.notFound = MasterTexts::tr("Item no. '%1' not found");

    kind.list.screen = u"frmItemsInv"_s;
    kind.list.caption = MasterTexts::tr("Items");
    kind.list.columns = {{u"ItemNo"_s, MasterTexts::tr("Item no."), 110},
                         {u"ItemDescription"_s, MasterTexts::tr("Description"), 300},
                         {u"UnitPrice"_s, MasterTexts::tr("Unit Price"), 110, Qt::AlignRight}};
    kind.list.orders = {{u"ItemNo"_s, MasterTexts::tr("&Item no."), u"mnuSortItemNo"_s},
                        {u"ItemDescription1"_s, MasterTexts::tr("&Description"), u"mnuSortDescription"_s}};
    kind.list.report = u"TrptItems"_s;
    kind.list.filterField = u"ItemTypeID"_s;
    kind.list.notSuspended = u"(Suspended = false)"_s;
    // Nothing keeps an item from being deleted, not even its movements.

    kind.command.action = u"ActionEditItems"_s;
    kind.command.caption = MasterTexts::tr("Edit Items");
    kind.command.rights = u"Items"_s;
    kind.command.isMain = true;
    kind.command.reopening = MasterKind::Reopening::LiftFilter;

    kind.files.systemFields = {u"ItemID"_s, u"SalesGLAccountID"_s, u"COGSGLAccountID"_s, u"InventoryGLAccountID"_s,
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
