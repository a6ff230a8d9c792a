#include "data/layouts.h"

#include "data/fields.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Layouts {

using Engine::TableLayout;
using enum Engine::IndexOption;

const TableLayout &item()
{
    static const TableLayout layout{
        u"Item"_s,
        {
            Fields::ItemID,
            Fields::ItemNo.sized(20),
            Fields::ItemDescription.sized(40),
            Fields::SalesGLAccountID,
            Fields::COGSGLAccountID,
            Fields::InventoryGLAccountID,
            Fields::TaxCodes.sized(3),
            Fields::UnitPrice,
            Fields::WgtAvgCost,
            Fields::StandardCost,
            Fields::Suspended,
            Fields::Notes,
            Fields::ItemTypeID,
        },
        {
            {{}, u"ItemID"_s, Primary},
            {u"ITEMDESCRIPTION1"_s, u"ItemDescription"_s, CaseInsensitive},
            {u"ITEMTYPEID"_s, u"ItemTypeID"_s},
            {u"INVENTORYGLACCOUNTID"_s, u"InventoryGLAccountID"_s},
            {u"COGSGLACCOUNTID"_s, u"COGSGLAccountID"_s},
            {u"SALESGLACCOUNTID"_s, u"SalesGLAccountID"_s},
            {u"ITEMNO"_s, u"ItemNo"_s},
        },
    };
    return layout;
}

const TableLayout &itemType()
{
    static const TableLayout layout{
        u"ItemType"_s,
        {
            Fields::ItemTypeID,
            Fields::TypeName.sized(40),
            Fields::Inventory,
            Fields::CostingMethod,
        },
        {
            {{}, u"ItemTypeID"_s, Primary},
            {u"TYPENAME1"_s, u"TypeName"_s, CaseInsensitive},
        },
    };
    return layout;
}

const TableLayout &warehse()
{
    static const TableLayout layout{
        u"Warehse"_s,
        {
            Fields::WarehouseID,
            Fields::WarehouseName.sized(50),
            Fields::Location_ID,
        },
        {
            {{}, u"WarehouseID"_s, Primary},
            {u"WAREHOUSENAME1"_s, u"WarehouseName"_s, CaseInsensitive},
            {u"LOCATION_ID"_s, u"Location_ID"_s},
        },
    };
    return layout;
}

const TableLayout &tax()
{
    static const TableLayout layout{
        u"Tax"_s,
        {
            Fields::TaxID,
            Fields::TaxName.sized(20),
            Fields::Rate,
            Fields::TaxCode.sized(1),
            Fields::TaxDescription.sized(20),
            Fields::TaxGLAccountID,
        },
        {
            {{}, u"TaxID"_s, Primary},
            {u"TAXNAME1"_s, u"TaxName"_s, CaseInsensitive},
            {u"TAXGLACCOUNTID"_s, u"TaxGLAccountID"_s},
        },
    };
    return layout;
}

const TableLayout &currency()
{
    static const TableLayout layout{
        u"Currency"_s,
        {
            Fields::CurrencyID,
            Fields::CurrencyName.sized(20),
            Fields::ExchangeRate,
            Fields::GainLossExchangeGLAccntID,
            Fields::APGLAccountID,
            Fields::APDiscGLAccountID,
            Fields::ARGLAccountID,
            Fields::ARDiscGLAccountID,
            Fields::DfltWriteOffGLAccountID,
        },
        {
            {{}, u"CurrencyID"_s, Primary},
            {u"CURRENCYNAME1"_s, u"CurrencyName"_s, CaseInsensitive},
            {u"DFLTWRITEOFFGLACCOUNTID"_s, u"DfltWriteOffGLAccountID"_s},
            {u"ARDISCGLACCOUNTID"_s, u"ARDiscGLAccountID"_s},
            {u"ARGLACCOUNTID"_s, u"ARGLAccountID"_s},
            {u"APDISCGLACCOUNTID"_s, u"APDiscGLAccountID"_s},
            {u"APGLACCOUNTID"_s, u"APGLAccountID"_s},
            {u"GAINLOSSEXCHANGEGLACCNTID"_s, u"GainLossExchangeGLAccntID"_s},
        },
    };
    return layout;
}

const TableLayout &bank()
{
    static const TableLayout layout{
        u"Bank"_s,
        {
            Fields::BankID,
            Fields::BankName.sized(40),
            Fields::BankGLAccountID,
            Fields::CurrencyID,
        },
        {
            {{}, u"BankID"_s, Primary},
            {u"BANKNAME1"_s, u"BankName"_s, CaseInsensitive},
            {u"CURRENCYID"_s, u"CurrencyID"_s},
            {u"BANKGLACCOUNTID"_s, u"BankGLAccountID"_s},
        },
    };
    return layout;
}

const TableLayout &glAccnt()
{
    static const TableLayout layout{
        u"GLAccnt"_s,
        {
            Fields::GLAccountID,
            Fields::GLAccount.sized(10),
            Fields::AccountName.sized(50),
            Fields::Notes,
            Fields::AccountType,
            Fields::Suspended,
        },
        {
            {{}, u"GLAccountID"_s, Primary},
            {u"ACCOUNTNAME1"_s, u"AccountName"_s, CaseInsensitive},
            {u"GLACCOUNT"_s, u"GLAccount"_s},
        },
    };
    return layout;
}

const TableLayout &company()
{
    static const TableLayout layout{
        u"Company"_s,
        {
            Fields::CompanyNo,
            Fields::CompanyName.sized(40),
            Fields::FiscalYear,
            Fields::DefaultPeriodYYYY,
            Fields::DefaultPeriodPP,
            Fields::WPeriodFromYYYY,
            Fields::WPeriodFromPP,
            Fields::WPeriodToYYYY,
            Fields::WPeriodToPP,
            Fields::EPeriodFromYYYY,
            Fields::EPeriodFromPP,
            Fields::EPeriodToYYYY,
            Fields::EPeriodToPP,
            Fields::DefaultCurrencyID,
            Fields::Notes,
            Fields::APInvPONumbers,
            Fields::APInvDescriptions,
            Fields::DfltSalesGLAccountID,
            Fields::DfltCOGSGLAccountID,
            Fields::DfltInventoryGLAccountID,
            Fields::AddressLine1.sized(35),
            Fields::AddressLine2.sized(35),
            Fields::AddressLine3.sized(35),
            Fields::Phone.sized(20),
            Fields::TaxNo.sized(35),
            Fields::ARInvoiceMessage.sized(120),
            Fields::ARInvoiceStyle,
            Fields::ARInvoiceAustralia,
            Fields::ARInvoiceCopies,
            Fields::ApplicationVersion.sized(5),
            Fields::BackupOnExit,
            Fields::DefaultNetDays,
            Fields::ClientInvoiceLineItems.sized(1),
            Fields::FunderInvoiceLineItems.sized(1),
            Fields::FunderInvoiceFormat.sized(1),
            Fields::InvoiceFormat.sized(1),
        },
        {
            {{}, u"CompanyNo"_s, Primary},
        },
    };
    return layout;
}

} // namespace Tallymere::Layouts
