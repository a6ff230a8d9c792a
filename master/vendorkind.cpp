#include "master/masterkinds.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "data/fields.h"
#include "engine/records/query.h"
#include "engine/store/database.h"
#include "master/texts.h"
#include "master/webpage.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// An invoice is kept in the currency that its vendor had at the time.
void refuseCurrencyChange(const Engine::Table &vendor, const Engine::Value &currency)
{
    if (vendor.state() == Engine::TableState::Insert || currency == vendor.oldValue(Fields::CurrencyID))
        return;
    const QString invoices = u"SELECT COUNT(*) FROM APInv WHERE VendorID = ?"_s;
    if (Engine::singleValue(vendor.database(), invoices, {vendor.value(Fields::VendorID)}).toInt64() > 0)
        throw RuleError(MasterTexts::tr("Currency cannot be changed... \nInvoice(s) already exist"),
                        Fields::CurrencyID);
}

// Invoices may have come in since the currency was chosen.
void refuseCurrencyChangeAtLast(const Engine::Table &vendor)
{
    refuseCurrencyChange(vendor, vendor.value(Fields::CurrencyID));
}

void nameFields(Engine::Table &table)
{
    const std::pair<QString, QString> labels[] = {
        {Fields::DiscPC, MasterTexts::tr("Discount %")},
        {Fields::DiscDays, MasterTexts::tr("Discount days")},
        {Fields::NetDays, MasterTexts::tr("Net days")},
        {Fields::DelayDays, MasterTexts::tr("Default number of days to due date")}};
    for (const auto &[field, label] : labels)
        table.field(field).label = label;
}

void formatFields(Engine::Table &table)
{
    nameFields(table);
    table.field(Fields::CurrencyID).validate = [&table](const Engine::Value &currency) {
        refuseCurrencyChange(table, currency);
    };
    table.field(Fields::DiscPC).format = quantityFormat(RegionalSettings::system(), Fields::DiscPC);
    table.field(Fields::Balance).format = currencyFormat();
    table.field(Fields::WebPage).format.parse = [](const QString &typed) {
        return typed.isEmpty() ? Engine::Value() : Engine::Value(webPageAsKept(typed));
    };
    table.field(Fields::ZipCode).format.parse = [](const QString &typed) {
        return typed.isEmpty() ? Engine::Value() : Engine::Value(typed.toUpper());
    };
}

// New vendors are paid in the organization's currency.
Engine::Answer<void> presetCurrency(Engine::Table &vendor)
{
    return
        [&vendor,
         row = Engine::asked(vendor.database().connection().prepare(u"SELECT DefaultCurrencyID FROM Company"_s))] {
            if (row->next() && row->intAt(0) > 0)
                vendor.setDefault(Fields::CurrencyID, row->intAt(0));
        };
}

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"vendors"_s;
    kind.oneName = u"vendor"_s;
    kind.table = u"Vendor"_s;
    kind.keyField = Fields::VendorID;
    kind.numberField = Fields::VendorNo;
    kind.record.counterTable = u"VendCtl"_s;
    kind.record.numberCounter = Fields::NextVendorNo;
    kind.record.keyCounter = Fields::NextVendorID;
    kind.nameFields = {Fields::VendorNo, Fields::VendorName};
    kind.addFields = [](Engine::Table &table) {
        table.addLookup(Fields::Balance, {Fields::VendorID, u"VBalance"_s, Fields::VendorID, Fields::Balance});
    };
    kind.formatFields = formatFields;

    kind.record.screen = u"frmVendor"_s;
    kind.record.caption = MasterTexts::tr("Vendor");
    kind.record.newCaption = kind.record.caption;
    kind.record.comesInNumbers = true;
    kind.record.namesCaption = false;
    kind.record.defaults = {{Fields::Suspended, false}};
    kind.record.preset = presetCurrency;
    kind.record.presetFields = {Fields::CurrencyID};
    kind.record.required = {{Fields::VendorNo, MasterTexts::tr("Field 'Vendor no.' must have a value")},
                            {Fields::VendorName, MasterTexts::tr("Field 'Vendor Name' must have a value")},
                            {Fields::CurrencyID, MasterTexts::tr("Field 'Currency' must have a value")}};
    kind.record.check = refuseCurrencyChangeAtLast;
    kind.record.references = {{Fields::CurrencyID, u"Currency"_s, Fields::CurrencyName,
                               MasterTexts::tr("Currency no longer exists"),
                               MasterTexts::tr("Currency '%1' not found")}};
    kind.record.taken = MasterTexts::tr("Vendor no. already exists");
    kind.record.notFound = MasterTexts::tr("Vendor no. '%1' not found");

    kind.list.screen = u"frmVendors"_s;
    kind.list.caption = MasterTexts::tr("Vendors");
    kind.list.columns = {{Fields::VendorNo, MasterTexts::tr("Vendor no."), 90},
                         {Fields::VendorName, MasterTexts::tr("Name"), 260},
                         {Fields::Phone, MasterTexts::tr("Phone"), 130},
                         {Fields::Contact, MasterTexts::tr("Contact"), 190},
                         {Fields::Balance, MasterTexts::tr("Balance"), 100, Qt::AlignRight}};
    kind.list.orders = {{Fields::VendorNo, MasterTexts::tr("&Vendor no."), u"mnuSortVendorNo"_s},
                        {u"VendorName1"_s, MasterTexts::tr("&Name"), u"mnuSortName"_s}};
    kind.list.firstOrder = 1;
    kind.list.report = u"TrptVendors"_s;
    kind.list.filterField = Fields::CurrencyID;
    kind.list.notSuspended = u"(Suspended <> true)"_s;
    // Receipts keep naming a vendor that has gone.
    kind.list.ownedTables = {u"VBalance"_s, u"VContact"_s};

    kind.command.action = u"ActionEditVendors"_s;
    kind.command.caption = MasterTexts::tr("Edit Vendors");
    kind.command.rights = u"frmVendors/Vendors"_s;
    kind.command.isMain = true;
    kind.command.glyph = Glyph::Vendor;
    kind.command.reopening = MasterKind::Reopening::JustShow;

    kind.files.systemFields = {Fields::VendorID};
    kind.files.longTexts = {Fields::WebPage};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::vendor()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
