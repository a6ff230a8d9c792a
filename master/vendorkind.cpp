#include "master/masterkinds.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "engine/query.h"
#include "master/texts.h"
#include "master/webpage.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// An invoice is kept in the currency that its vendor had at the time.
void refuseCurrencyChange(const Engine::Table &vendor, const Engine::Value &currency)
{
    if (vendor.state() == Engine::TableState::Insert || currency == vendor.oldValue(u"CurrencyID"))
        return;
    const QString invoices = u"SELECT COUNT(*) FROM APInv WHERE VendorID = ?"_s;
    if (Engine::singleValue(vendor.database(), invoices, {vendor.value(u"VendorID")}).toInt64() > 0)
        throw RuleError(MasterTexts::tr("Currency cannot be changed... \nInvoice(s) already exist"),
                        u"CurrencyID"_s);
}

// Invoices may have come in since the currency was chosen.
void refuseCurrencyChangeAtLast(const Engine::Table &vendor)
{
    refuseCurrencyChange(vendor, vendor.value(u"CurrencyID"));
}

void nameFields(Engine::Table &table)
{
    const std::pair<QString, QString> labels[] = {
        {u"DiscPC"_s, MasterTexts::tr("Discount %")},
        {u"DiscDays"_s, MasterTexts::tr("Discount days")},
        {u"NetDays"_s, MasterTexts::tr("Net days")},
        {u"DelayDays"_s, MasterTexts::tr("Default number of days to due date")}};
    for (const auto &[field, label] : labels)
        table.field(field).label = label;
}

void formatFields(Engine::Table &table)
{
    nameFields(table);
    table.field(u"CurrencyID").validate = [&table](const Engine::Value &currency) {
        refuseCurrencyChange(table, currency);
    };
    table.field(u"DiscPC").format = quantityFormat(RegionalSettings::system(), u"DiscPC"_s);
    table.field(u"Balance").format = currencyFormat();
    table.field(u"WebPage").format.parse = [](const QString &typed) {
        return typed.isEmpty() ? Engine::Value() : Engine::Value(webPageAsKept(typed));
    };
    table.field(u"ZipCode").format.parse = [](const QString &typed) {
        return typed.isEmpty() ? Engine::Value() : Engine::Value(typed.toUpper());
    };
}

// New vendors are paid in the organization's currency.
void presetCurrency(Engine::Table &vendor)
{
    const auto currency = Engine::singleValue(vendor.database(), u"SELECT DefaultCurrencyID FROM Company"_s);
    if (currency.toInt() > 0)
        vendor.setDefault(u"CurrencyID", currency);
}

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"vendors"_s;
    kind.oneName = u"vendor"_s;
    kind.table = u"Vendor"_s;
    kind.keyField = u"VendorID"_s;
    kind.numberField = u"VendorNo"_s;
    kind.record.counterTable = u"VendCtl"_s;
    kind.record.numberCounter = u"NextVendorNo"_s;
    kind.record.keyCounter = u"NextVendorID"_s;
    kind.nameFields = {u"VendorNo"_s, u"VendorName"_s};
    kind.addFields = [](Engine::Table &table) {
        table.addLookup(u"Balance"_s, Engine::FieldType::Money, 0,
                        {u"VendorID"_s, u"VBalance"_s, u"VendorID"_s, u"Balance"_s});
    };
    kind.formatFields = formatFields;

    kind.record.screen = u"frmVendor"_s;
    kind.record.caption = MasterTexts::tr("Vendor");
    kind.record.newCaption = kind.record.caption;
    kind.record.namesCaption = false;
    kind.record.defaults = {{u"Suspended"_s, false}};
    kind.record.preset = presetCurrency;
    kind.record.presetFields = {u"CurrencyID"_s};
    kind.record.required = {{u"VendorNo"_s, MasterTexts::tr("Field 'Vendor no.' must have a value")},
                            {u"VendorName"_s, MasterTexts::tr("Field 'Vendor Name' must have a value")},
                            {u"CurrencyID"_s, MasterTexts::tr("Field 'Currency' must have a value")}};
    kind.record.check = refuseCurrencyChangeAtLast;
    kind.record.references = {{u"CurrencyID"_s, u"Currency"_s, u"CurrencyName"_s,
                               MasterTexts::tr("Currency no longer exists"),
                               MasterTexts::tr("Currency '%1' not found")}};
    kind.record.taken = MasterTexts::tr("Vendor no. already exists");
    kind.record.notFound = MasterTexts::tr("Vendor no. '%1' not found");

    kind.list.screen = u"frmVendors"_s;
    kind.list.caption = MasterTexts::tr("Vendors");
    kind.list.columns = {{u"VendorNo"_s, MasterTexts::tr("Vendor no."), 90},
                         {u"VendorName"_s, MasterTexts::tr("Name"), 260},
                         {u"Phone"_s, MasterTexts::tr("Phone"), 130},
                         {u"Contact"_s, MasterTexts::tr("Contact"), 190},
                         {u"Balance"_s, MasterTexts::tr("Balance"), 100, Qt::AlignRight}};
    kind.list.orders = {{u"VendorNo"_s, MasterTexts::tr("&Vendor no."), u"mnuSortVendorNo"_s},
                        {u"VendorName1"_s, MasterTexts::tr("&Name"), u"mnuSortName"_s}};
    kind.list.firstOrder = 1;
    kind.list.report = u"TrptVendors"_s;
    kind.list.filterField = u"CurrencyID"_s;
    kind.list.notSuspended = u"(Suspended <> true)"_s;
    // Receipts keep naming a vendor that has gone.
    kind.list.ownedTables = {u"VBalance"_s, u"VContact"_s};

    kind.command.action = u"ActionEditVendors"_s;
    kind.command.caption = MasterTexts::tr("Edit Vendors");
    kind.command.rights = u"frmVendors/Vendors"_s;
    kind.command.isMain = true;
    kind.command.reopening = MasterKind::Reopening::JustShow;

    kind.files.systemFields = {u"VendorID"_s};
    kind.files.longTexts = {u"WebPage"_s};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::vendor()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
