#include "master/masterkinds.h"

#include "base/formats.h"
#include "data/fields.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void formatFields(Engine::Table &item)
{
    for (const auto &field : {Fields::UnitPrice, Fields::WgtAvgCost, Fields::StandardCost})
        item.field(field).format = currencyFormat(RegionalSettings::system(), field);
    item.field(Fields::TaxCodes).format = lettersFormat(MasterTexts::tr("Tax Codes"), Fields::TaxCodes);
}

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"items"_s;
    kind.oneName = u"item"_s;
    kind.table = u"Item"_s;
    kind.keyField = Fields::ItemID;
    kind.numberField = Fields::ItemNo;
    kind.record.counterTable = u"ItemCtl"_s;
    kind.record.numberCounter = Fields::NextItemNo;
    kind.record.keyCounter = Fields::NextItemID;
    kind.nameFields = {Fields::ItemNo, Fields::ItemDescription};
    kind.formatFields = formatFields;

    kind.record.screen = u"frmItemInv"_s;
    kind.record.caption = MasterTexts::tr("Item");
    kind.record.newCaption = MasterTexts::tr("New Item");
    kind.record.comesInNumbers = true;
    kind.record.defaults = {{Fields::Suspended, false}};
    // Costs, suspension and accounts are the original's own.
    kind.record.copiedFields = {Fields::ItemDescription, Fields::TaxCodes, Fields::UnitPrice, Fields::Notes,
                                Fields::ItemTypeID};
    kind.record.copyCaption = MasterTexts::tr("New (copied) Item");
    kind.record.required = {{Fields::ItemNo, MasterTexts::tr("Field 'Item no.' must have a value")},
                            {Fields::ItemDescription, MasterTexts::tr("Field 'Description' must have a value")},
                            {Fields::ItemTypeID, MasterTexts::tr("Field 'Item Type' must have a value")}};
    kind.record.references = {{Fields::ItemTypeID, u"ItemType"_s, Fields::TypeName,
                               MasterTexts::tr("Item Type no longer exists"),
                               MasterTexts::tr("Item type '%1' not found")}};
    kind.record.taken = MasterTexts::tr("Item no. already exists");
    kind.record.notFound = MasterTexts::tr("Item no. '%1' not found");

    kind.list.screen = u"frmItemsInv"_s;
    kind.list.caption = MasterTexts::tr("Items");
    kind.list.columns = {{Fields::ItemNo, MasterTexts::tr("Item no."), 110},
                         {Fields::ItemDescription, MasterTexts::tr("Description"), 300},
                         {Fields::UnitPrice, MasterTexts::tr("Unit Price"), 110, Qt::AlignRight}};
    kind.list.orders = {{Fields::ItemNo, MasterTexts::tr("&Item no."), u"mnuSortItemNo"_s},
                        {u"ItemDescription1"_s, MasterTexts::tr("&Description"), u"mnuSortDescription"_s}};
    kind.list.report = u"TrptItems"_s;
    kind.list.filterField = Fields::ItemTypeID;
    kind.list.notSuspended = u"(Suspended = false)"_s;
    // Nothing keeps an item from being deleted, not even its movements.
    kind.list.ownedTables = {u"IBarcode"_s};

    kind.command.action = u"ActionEditItems"_s;
    kind.command.caption = MasterTexts::tr("Edit Items");
    kind.command.rights = u"Items"_s;
    kind.command.isMain = true;
    kind.command.glyph = Glyph::Item;
    kind.command.reopening = MasterKind::Reopening::LiftFilter;

    kind.files.systemFields = {Fields::ItemID, Fields::SalesGLAccountID, Fields::COGSGLAccountID,
                               Fields::InventoryGLAccountID, Fields::UnitPrice};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::item()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
