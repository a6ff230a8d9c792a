#include "master/masterkinds.h"

#include "engine/query.h"
#include "frame/shared/ruleerror.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("Tallymere::MasterKinds", text); }

} // namespace

MasterKind MasterKinds::item()
{
    MasterKind kind;
    kind.table = u"Item"_s;
    kind.keyField = u"ItemID"_s;
    kind.numberField = u"ItemNo"_s;
    kind.counterTable = u"ItemCtl"_s;
    kind.numberCounter = u"NextItemNo"_s;
    kind.keyCounter = u"NextItemID"_s;
    kind.required = {{u"ItemNo"_s, tr("Field 'Item no.' must have a value")},
                     {u"ItemDescription"_s, tr("Field 'Description' must have a value")},
                     {u"ItemTypeID"_s, tr("Field 'Item Type' must have a value")}};
    kind.references = {{u"ItemTypeID"_s, u"ItemType"_s, tr("Item Type no longer exists")}};
    kind.defaults = {{u"Suspended"_s, false}};
    kind.taken = tr("Item no. already exists");
    return kind;
}

MasterKind MasterKinds::itemType()
{
    MasterKind kind;
    kind.table = u"ItemType"_s;
    kind.keyField = u"ItemTypeID"_s;
    kind.required = {{u"TypeName"_s, tr("Field 'Type Name' must have a value")}};
    kind.defaults = {{u"Inventory"_s, false}, {u"CostingMethod"_s, 1}};
    kind.taken = tr("Item Type already exists");
    return kind;
}

MasterKind MasterKinds::location()
{
    MasterKind kind;
    kind.table = u"Warehse"_s;
    kind.keyField = u"WarehouseID"_s;
    kind.required = {{u"WarehouseName"_s, tr("Field 'Location Name' must have a value")}};
    kind.taken = tr("That Location already exists");
    return kind;
}

MasterKind MasterKinds::vendor()
{
    MasterKind kind;
    kind.table = u"Vendor"_s;
    kind.keyField = u"VendorID"_s;
    kind.numberField = u"VendorNo"_s;
    kind.counterTable = u"VendCtl"_s;
    kind.numberCounter = u"NextVendorNo"_s;
    kind.keyCounter = u"NextVendorID"_s;
    kind.required = {{u"VendorNo"_s, tr("Field 'Vendor no.' must have a value")},
                     {u"VendorName"_s, tr("Field 'Vendor Name' must have a value")},
                     {u"CurrencyID"_s, tr("Field 'Currency' must have a value")}};
    kind.references = {{u"CurrencyID"_s, u"Currency"_s, tr("Currency no longer exists")}};
    kind.defaults = {{u"Suspended"_s, false}};
    kind.taken = tr("Vendor no. already exists");
    return kind;
}

MasterKind MasterKinds::vendorContact()
{
    MasterKind kind;
    kind.table = u"VContact"_s;
    kind.keyField = u"ContactID"_s;
    kind.keyByEngine = true;
    kind.required = {{u"VendorID"_s, tr("Field 'Vendor' must have a value")}};
    kind.references = {{u"VendorID"_s, u"Vendor"_s, tr("Vendor no longer exists")}};
    return kind;
}

// A rate of 0 counts as missing.
MasterKind MasterKinds::tax()
{
    MasterKind kind;
    kind.table = u"Tax"_s;
    kind.keyField = u"TaxID"_s;
    kind.required = {{u"TaxName"_s, tr("Field 'Tax Name' must have a value")},
                     {u"TaxCode"_s, tr("Field 'Code' must have a value")},
                     {u"TaxDescription"_s, tr("Field 'Description' must have a value")},
                     {u"Rate"_s, tr("Field 'Rate' must have a value")}};
    kind.taken = tr("Tax already exists");
    return kind;
}

MasterKind MasterKinds::bank()
{
    MasterKind kind;
    kind.table = u"Bank"_s;
    kind.keyField = u"BankID"_s;
    kind.required = {{u"BankName"_s, tr("Field 'Bank Name' must have a value")},
                     {u"CurrencyID"_s, tr("Field 'Currency' must have a value")}};
    kind.references = {{u"CurrencyID"_s, u"Currency"_s, tr("Currency no longer exists")}};
    kind.taken = tr("Bank already exists");
    return kind;
}

MasterKind MasterKinds::currency()
{
    MasterKind kind;
    kind.table = u"Currency"_s;
    kind.keyField = u"CurrencyID"_s;
    kind.required = {{u"CurrencyName"_s, tr("Field 'Currency Name' must have a value")}};
    kind.taken = tr("Currency already exists");
    return kind;
}

ItemRecord::ItemRecord(Engine::Database &database)
    : MasterRecord(database, MasterKinds::item())
{
}

void ItemRecord::check()
{
    const QString codes = table().text(u"TaxCodes");
    const bool letters = std::all_of(codes.begin(), codes.end(), [](QChar code) { return code.isLetter(); });
    if (!letters)
        throw RuleError(tr("Tax Codes must be letters, one for each tax"), u"TaxCodes"_s);
}

VendorRecord::VendorRecord(Engine::Database &database)
    : MasterRecord(database, MasterKinds::vendor())
{
}

QString VendorRecord::webPageAsKept(const QString &typed)
{
    return typed.contains("http://"_L1) ? typed.mid(7, 22) : typed;
}

void VendorRecord::configureFields()
{
    table().field(u"WebPage").format.parse = [](const QString &typed) {
        return typed.isEmpty() ? Engine::Value() : Engine::Value(webPageAsKept(typed));
    };
    table().field(u"ZipCode").format.parse = [](const QString &typed) {
        return typed.isEmpty() ? Engine::Value() : Engine::Value(typed.toUpper());
    };
}

void VendorRecord::presetNew()
{
    const auto currency = Engine::singleValue(database(), u"SELECT DefaultCurrencyID FROM Company"_s);
    if (currency.toInt() > 0)
        table().setDefault(u"CurrencyID", currency);
}

VendorContactRecord::VendorContactRecord(Engine::Database &database)
    : MasterRecord(database, MasterKinds::vendorContact())
{
}

void VendorContactRecord::check()
{
    if (table().text(u"FirstName").isEmpty() && table().text(u"LastName").isEmpty())
        throw RuleError(tr("Field 'Contact Name' must have a value"), u"FirstName"_s);
}

} // namespace Tallymere
