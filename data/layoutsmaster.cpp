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
            {{}, Fields::ItemID, Primary},
            {u"ITEMDESCRIPTION1"_s, Fields::ItemDescription, CaseInsensitive},
            {u"ITEMTYPEID"_s, Fields::ItemTypeID},
            {u"INVENTORYGLACCOUNTID"_s, Fields::InventoryGLAccountID},
            {u"COGSGLACCOUNTID"_s, Fields::COGSGLAccountID},
            {u"SALESGLACCOUNTID"_s, Fields::SalesGLAccountID},
            {u"ITEMNO"_s, Fields::ItemNo},
        },
    };
    return layout;
}

const TableLayout &iBarcode()
{
    static const TableLayout layout{
        u"IBarcode"_s,
        {
            Fields::BarcodeID,
            Fields::ItemID,
            Fields::Barcode.sized(80),
        },
        {
            {{}, Fields::BarcodeID, Primary},
            {u"ITEMID"_s, Fields::ItemID},
            {u"BARCODE"_s, Fields::Barcode},
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
            {{}, Fields::ItemTypeID, Primary},
            {u"TYPENAME1"_s, Fields::TypeName, CaseInsensitive},
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
            {{}, Fields::WarehouseID, Primary},
            {u"WAREHOUSENAME1"_s, Fields::WarehouseName, CaseInsensitive},
            {u"LOCATION_ID"_s, Fields::Location_ID},
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
            {{}, Fields::TaxID, Primary},
            {u"TAXNAME1"_s, Fields::TaxName, CaseInsensitive},
            {u"TAXGLACCOUNTID"_s, Fields::TaxGLAccountID},
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
            {{}, Fields::CurrencyID, Primary},
            {u"CURRENCYNAME1"_s, Fields::CurrencyName, CaseInsensitive},
            {u"DFLTWRITEOFFGLACCOUNTID"_s, Fields::DfltWriteOffGLAccountID},
            {u"ARDISCGLACCOUNTID"_s, Fields::ARDiscGLAccountID},
            {u"ARGLACCOUNTID"_s, Fields::ARGLAccountID},
            {u"APDISCGLACCOUNTID"_s, Fields::APDiscGLAccountID},
            {u"APGLACCOUNTID"_s, Fields::APGLAccountID},
            {u"GAINLOSSEXCHANGEGLACCNTID"_s, Fields::GainLossExchangeGLAccntID},
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
            {{}, Fields::BankID, Primary},
            {u"BANKNAME1"_s, Fields::BankName, CaseInsensitive},
            {u"CURRENCYID"_s, Fields::CurrencyID},
            {u"BANKGLACCOUNTID"_s, Fields::BankGLAccountID},
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
            {{}, Fields::GLAccountID, Primary},
            {u"ACCOUNTNAME1"_s, Fields::AccountName, CaseInsensitive},
            {u"GLACCOUNT"_s, Fields::GLAccount},
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
            {{}, Fields::CompanyNo, Primary},
        },
    };
    return layout;
}

} // namespace Tallymere::Layouts
