#include "data/fieldtitles.h"

#include "data/fields.h"
#include "data/texts.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace Tallymere {

QString fieldTitle(const QString &field)
{
    static const QHash<QString, QString> titles{
        {Fields::AddressLine1, DataTexts::tr("Address")},
        {Fields::AddressLine2, DataTexts::tr("Address, second line")},
        {Fields::AdjDate, DataTexts::tr("Date")},
        {Fields::AdjDescription, DataTexts::tr("Description")},
        {Fields::BankName, DataTexts::tr("Bank")},
        {Fields::BusinessPhone, DataTexts::tr("Business Phone")},
        {Fields::BusinessPhone2, DataTexts::tr("Business Phone 2")},
        {Fields::BusinessPhone2Ext, DataTexts::tr("Extension 2")},
        {Fields::BusinessPhoneExt, DataTexts::tr("Extension")},
        {Fields::Cellular, DataTexts::tr("Cellular")},
        {Fields::City, DataTexts::tr("City")},
        {Fields::Contact, DataTexts::tr("Contact")},
        {Fields::CostingMethod, DataTexts::tr("Costing Method")},
        {Fields::Country, DataTexts::tr("Country")},
        {Fields::CurrencyID, DataTexts::tr("Currency")},
        {Fields::CurrencyName, DataTexts::tr("Currency")},
        {Fields::DefaultInvDescription, DataTexts::tr("Default Description")},
        {Fields::DelayDays, DataTexts::tr("Days to due date")},
        {Fields::Description, DataTexts::tr("Description")},
        {Fields::DiscDays, DataTexts::tr("Discount days")},
        {Fields::DiscPC, DataTexts::tr("Discount %")},
        {Fields::EMail, DataTexts::tr("E-Mail")},
        {Fields::ExchangeRate, DataTexts::tr("Exchange Rate")},
        {Fields::Fax, DataTexts::tr("Fax")},
        {Fields::FirstName, DataTexts::tr("First Name")},
        {Fields::GLPeriod, DataTexts::tr("Period")},
        {Fields::GLYear, DataTexts::tr("Year of Period")},
        {Fields::HomePhone, DataTexts::tr("Home Phone")},
        {Fields::Inventory, DataTexts::tr("Inventory")},
        {Fields::InventoryDate, DataTexts::tr("Date")},
        {Fields::ItemDescription, DataTexts::tr("Description")},
        {Fields::ItemID, DataTexts::tr("Item")},
        {Fields::ItemNo, DataTexts::tr("Item no.")},
        {Fields::ItemTypeID, DataTexts::tr("Item Type")},
        {Fields::JobTitle, DataTexts::tr("Job Title")},
        {Fields::LastName, DataTexts::tr("Last Name")},
        {Fields::NetDays, DataTexts::tr("Net days")},
        {Fields::Notes, DataTexts::tr("Notes")},
        {Fields::Pager, DataTexts::tr("Pager")},
        {Fields::Phone, DataTexts::tr("Phone")},
        {Fields::PurchaseOrderNo, DataTexts::tr("Purchase Order no.")},
        {Fields::Quantity, DataTexts::tr("Quantity")},
        {Fields::Rate, DataTexts::tr("Rate %")},
        {Fields::ReceiptDate, DataTexts::tr("Date")},
        {Fields::ReceiptNo, DataTexts::tr("Receipt no.")},
        {Fields::StandardCost, DataTexts::tr("Standard Cost")},
        {Fields::StateProv, DataTexts::tr("State")},
        {Fields::Suspended, DataTexts::tr("Suspended")},
        {Fields::TaxCode, DataTexts::tr("Code")},
        {Fields::TaxCodes, DataTexts::tr("Tax Codes")},
        {Fields::TaxDescription, DataTexts::tr("Description")},
        {Fields::TaxName, DataTexts::tr("Tax")},
        {Fields::TaxNo, DataTexts::tr("Tax no.")},
        {Fields::TypeName, DataTexts::tr("Item Type")},
        {Fields::UnitCost, DataTexts::tr("Unit Cost")},
        {Fields::UnitPrice, DataTexts::tr("Unit Price")},
        {Fields::UsageNo, DataTexts::tr("Usage no.")},
        {Fields::VendorID, DataTexts::tr("Vendor")},
        {Fields::VendorName, DataTexts::tr("Vendor")},
        {Fields::VendorNo, DataTexts::tr("Vendor no.")},
        {Fields::WarehouseID, DataTexts::tr("Location")},
        {Fields::WarehouseName, DataTexts::tr("Location")},
        {Fields::WebPage, DataTexts::tr("Web Page")},
        {Fields::WgtAvgCost, DataTexts::tr("Wgt Avg Cost")},
        {Fields::ZipCode, DataTexts::tr("Zip Code")},
    };
    return titles.value(field);
}

QStringList fieldWords(const QString &field)
{
    static const QString quantity = DataTexts::tr("quantity, qty, number of units, pieces");
    static const QHash<QString, QString> words{
        {Fields::ItemDescription, DataTexts::tr("description, item description, item name, name")},
        {Fields::ItemNo, DataTexts::tr("item, item no, item number, no, number, article, article no, sku, code")},
        {Fields::QtyReceived, quantity},
        {Fields::Quantity, quantity},
        {Fields::StandardCost, DataTexts::tr("standard cost, std cost")},
        {Fields::UnitCost, DataTexts::tr("unit cost, cost, unit price, price")},
    };
    return words.value(field).split(u',');
}

} // namespace Tallymere
