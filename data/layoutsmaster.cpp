#include "data/layouts.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Layouts {

using Engine::TableLayout;
using enum Engine::FieldType;
using enum Engine::IndexOption;

const TableLayout &item()
{
    static const TableLayout layout{
        u"Item"_s,
        {
            {u"ItemID"_s, Integer},
            {u"ItemNo"_s, Text, 20},
            {u"ItemDescription"_s, Text, 40},
            {u"SalesGLAccountID"_s, Integer},
            {u"COGSGLAccountID"_s, Integer},
            {u"InventoryGLAccountID"_s, Integer},
            {u"TaxCodes"_s, Text, 3},
            {u"UnitPrice"_s, Money},
            {u"WgtAvgCost"_s, Money},
            {u"StandardCost"_s, Money},
            {u"Suspended"_s, Boolean},
            {u"Notes"_s, Memo},
            {u"ItemTypeID"_s, Integer},
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
            {u"ItemTypeID"_s, Integer},
            {u"TypeName"_s, Text, 40},
            {u"Inventory"_s, Boolean},
            {u"CostingMethod"_s, SmallInt},
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
            {u"WarehouseID"_s, Integer},
            {u"WarehouseName"_s, Text, 50},
            {u"Location_ID"_s, Integer},
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
            {u"TaxID"_s, Integer},
            {u"TaxName"_s, Text, 20},
            {u"Rate"_s, Float},
            {u"TaxCode"_s, Text, 1},
            {u"TaxDescription"_s, Text, 20},
            {u"TaxGLAccountID"_s, Integer},
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
            {u"CurrencyID"_s, Integer},
            {u"CurrencyName"_s, Text, 20},
            {u"ExchangeRate"_s, Float},
            {u"GainLossExchangeGLAccntID"_s, Integer},
            {u"APGLAccountID"_s, Integer},
            {u"APDiscGLAccountID"_s, Integer},
            {u"ARGLAccountID"_s, Integer},
            {u"ARDiscGLAccountID"_s, Integer},
            {u"DfltWriteOffGLAccountID"_s, Integer},
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
            {u"BankID"_s, Integer},
            {u"BankName"_s, Text, 40},
            {u"BankGLAccountID"_s, Integer},
            {u"CurrencyID"_s, Integer},
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
            {u"GLAccountID"_s, Integer},
            {u"GLAccount"_s, Text, 10},
            {u"AccountName"_s, Text, 50},
            {u"Notes"_s, Memo},
            {u"AccountType"_s, SmallInt},
            {u"Suspended"_s, Boolean},
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
            {u"CompanyNo"_s, SmallInt},
            {u"CompanyName"_s, Text, 40},
            {u"FiscalYear"_s, SmallInt},
            {u"DefaultPeriodYYYY"_s, SmallInt},
            {u"DefaultPeriodPP"_s, SmallInt},
            {u"WPeriodFromYYYY"_s, SmallInt},
            {u"WPeriodFromPP"_s, SmallInt},
            {u"WPeriodToYYYY"_s, SmallInt},
            {u"WPeriodToPP"_s, SmallInt},
            {u"EPeriodFromYYYY"_s, SmallInt},
            {u"EPeriodFromPP"_s, SmallInt},
            {u"EPeriodToYYYY"_s, SmallInt},
            {u"EPeriodToPP"_s, SmallInt},
            {u"DefaultCurrencyID"_s, Integer},
            {u"Notes"_s, Memo},
            {u"APInvPONumbers"_s, Boolean},
            {u"APInvDescriptions"_s, Boolean},
            {u"DfltSalesGLAccountID"_s, Integer},
            {u"DfltCOGSGLAccountID"_s, Integer},
            {u"DfltInventoryGLAccountID"_s, Integer},
            {u"AddressLine1"_s, Text, 35},
            {u"AddressLine2"_s, Text, 35},
            {u"AddressLine3"_s, Text, 35},
            {u"Phone"_s, Text, 20},
            {u"TaxNo"_s, Text, 35},
            {u"ARInvoiceMessage"_s, Text, 120},
            {u"ARInvoiceStyle"_s, SmallInt},
            {u"ARInvoiceAustralia"_s, Boolean},
            {u"ARInvoiceCopies"_s, SmallInt},
            {u"ApplicationVersion"_s, Text, 5},
            {u"BackupOnExit"_s, SmallInt},
            {u"DefaultNetDays"_s, Integer},
            {u"ClientInvoiceLineItems"_s, Text, 1},
            {u"FunderInvoiceLineItems"_s, Text, 1},
            {u"FunderInvoiceFormat"_s, Text, 1},
            {u"InvoiceFormat"_s, Text, 1},
        },
        {
            {{}, u"CompanyNo"_s, Primary},
        },
    };
    return layout;
}

} // namespace Tallymere::Layouts
