#include "master/masterkinds.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "engine/query.h"
#include "master/webpage.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("Tallymere::Vendors", text); }

// An invoice is kept in the currency that its vendor had at the time.
void refuseCurrencyChange(const Engine::Table &vendor, const Engine::Value &currency)
{
    if (vendor.state() == Engine::TableState::Insert || currency == vendor.oldValue(u"CurrencyID"))
        return;
    const QString invoices = u"SELECT COUNT(*) FROM APInv WHERE VendorID = ?"_s;
    if (Engine::singleValue(vendor.database(), invoices, {vendor.value(u"VendorID")}).toInt64() > 0)
        throw RuleError(tr("Currency cannot be changed... \nInvoice(s) already exist"), u"CurrencyID"_s);
}

// Invoices may have come in since the currency was chosen.
void refuseCurrencyChangeAtLast(const Engine::Table &vendor)
{
    refuseCurrencyChange(vendor, vendor.value(u"CurrencyID"));
}

void nameFields(Engine::Table &table)
{
    const std::pair<QString, QString> labels[] = {{u"DiscPC"_s, tr("Discount %")},
                                                  {u"DiscDays"_s, tr("Discount days")},
                                                  {u"NetDays"_s, tr("Net days")},
                                                  {u"DelayDays"_s, tr("Default number of days to due date")}};
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
    kind.table = u"Vendor"_s;
    kind.keyField = u"VendorID"_s;
    kind.numberField = u"VendorNo"_s;
    kind.counterTable = u"VendCtl"_s;
    kind.numberCounter = u"NextVendorNo"_s;
    kind.keyCounter = u"NextVendorID"_s;
    kind.nameFields = {u"VendorNo"_s, u"VendorName"_s};
    kind.addFields = [](Engine::Table &table) {
        table.addLookup(u"Balance"_s, Engine::FieldType::Money, 0,
                        {u"VendorID"_s, u"VBalance"_s, u"VendorID"_s, u"Balance"_s});
    };
    kind.formatFields = formatFields;

    kind.screen = u"frmVendor"_s;
    kind.caption = tr("Vendor");
    kind.newCaption = kind.caption;
    kind.namesCaption = false;
    kind.defaults = {{u"Suspended"_s, false}};
    kind.preset = presetCurrency;
    kind.presetFields = {u"CurrencyID"_s};
    kind.required = {{u"VendorNo"_s, tr("Field 'Vendor no.' must have a value")},
                     {u"VendorName"_s, tr("Field 'Vendor Name' must have a value")},
                     {u"CurrencyID"_s, tr("Field 'Currency' must have a value")}};
    kind.check = refuseCurrencyChangeAtLast;
    kind.references = {{u"CurrencyID"_s, u"Currency"_s, u"CurrencyName"_s, tr("Currency no longer exists"),
                        tr("Currency '%1' not found")}};
    kind.taken = tr("Vendor no. already exists");
    kind.notFound = tr("Vendor no. '%1' not found");

    kind.listScreen = u"frmVendors"_s;
    kind.listCaption = tr("Vendors");
    kind.columns = {{u"VendorNo"_s, tr("Vendor no."), 90},
                    {u"VendorName"_s, tr("Name"), 260},
                    {u"Phone"_s, tr("Phone"), 130},
                    {u"Contact"_s, tr("Contact"), 190},
                    {u"Balance"_s, tr("Balance"), 100, Qt::AlignRight}};
    kind.orders = {{u"VendorNo"_s, tr("&Vendor no."), u"mnuSortVendorNo"_s},
                   {u"VendorName1"_s, tr("&Name"), u"mnuSortName"_s}};
    kind.firstOrder = 1;
    kind.prints = true;
    kind.filterField = u"CurrencyID"_s;
    kind.notSuspended = u"(Suspended <> true)"_s;
    // Receipts keep naming a vendor that has gone.
    kind.ownedTables = {u"VBalance"_s, u"VContact"_s};

    kind.action = u"ActionEditVendors"_s;
    kind.actionCaption = tr("Edit Vendors");
    kind.rights = u"frmVendors/Vendors"_s;
    kind.isMain = true;
    kind.reopening = MasterKind::Reopening::JustShow;

    kind.systemFields = {u"VendorID"_s};
    kind.longTexts = {u"WebPage"_s};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::vendor()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
