#include "data/layouts.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Layouts {

using Engine::FieldDef;
using Engine::TableLayout;
using enum Engine::FieldType;
using enum Engine::IndexOption;

namespace {

// What is kept of a vendor's contact and of a salesman.
QList<FieldDef> personFields()
{
    return {
        {u"LastName"_s, Text, 30},
        {u"FirstName"_s, Text, 30},
        {u"JobTitle"_s, Text, 40},
        {u"BusinessPhone"_s, Text, 20},
        {u"BusinessPhoneExt"_s, Text, 10},
        {u"BusinessPhone2"_s, Text, 20},
        {u"BusinessPhone2Ext"_s, Text, 10},
        {u"HomePhone"_s, Text, 20},
        {u"Fax"_s, Text, 20},
        {u"Cellular"_s, Text, 20},
        {u"Pager"_s, Text, 20},
        {u"EMail"_s, Text, 40},
        {u"Notes"_s, Memo},
    };
}

} // namespace

const TableLayout &vendor()
{
    static const TableLayout layout{
        u"Vendor"_s,
        {
            {u"VendorID"_s, Integer},
            {u"VendorNo"_s, Text, 10},
            {u"VendorName"_s, Text, 40},
            {u"AddressLine1"_s, Text, 35},
            {u"AddressLine2"_s, Text, 35},
            {u"City"_s, Text, 35},
            {u"StateProv"_s, Text, 20},
            {u"ZipCode"_s, Text, 10},
            {u"Country"_s, Text, 20},
            {u"Contact"_s, Text, 40},
            {u"Phone"_s, Text, 20},
            {u"Fax"_s, Text, 20},
            {u"EMail"_s, Text, 40},
            {u"WebPage"_s, Text, 30},
            {u"Notes"_s, Memo},
            {u"TaxNo"_s, Text, 12},
            {u"DefaultInvDescription"_s, Text, 40},
            {u"DiscPC"_s, Float},
            {u"DiscDays"_s, SmallInt},
            {u"NetDays"_s, SmallInt},
            {u"DelayDays"_s, SmallInt},
            {u"CurrencyID"_s, Integer},
            {u"Suspended"_s, Boolean},
        },
        {
            {{}, u"VendorID"_s, Primary},
            {u"VENDORNO"_s, u"VendorNo"_s},
            {u"VENDORNAME1"_s, u"VendorName"_s, CaseInsensitive},
            {u"CURRENCYID"_s, u"CurrencyID"_s},
        },
    };
    return layout;
}

const TableLayout &vContact()
{
    static const TableLayout layout{
        u"VContact"_s,
        QList<FieldDef>{{u"VendorID"_s, Integer}, {u"ContactID"_s, AutoInc}} + personFields(),
        {
            {{}, u"VendorID;ContactID"_s, Primary},
            {u"FULLNAME"_s, u"LastName;FirstName"_s, CaseInsensitive},
            {u"VENDORIDFULLNAME"_s, u"VendorID;LastName;FirstName"_s, CaseInsensitive},
        },
    };
    return layout;
}

const TableLayout &salesman()
{
    static const TableLayout layout{
        u"Salesman"_s,
        QList<FieldDef>{{u"SalesmanID"_s, Integer}} + personFields(),
        {
            {{}, u"SalesmanID"_s, Primary},
            {u"FULLNAME"_s, u"LastName;FirstName"_s, CaseInsensitive},
        },
    };
    return layout;
}

const TableLayout &vBalance()
{
    static const TableLayout layout{
        u"VBalance"_s,
        {
            {u"VendorID"_s, Integer},
            {u"Balance"_s, Money},
        },
        {
            {{}, u"VendorID"_s, Primary},
        },
    };
    return layout;
}

const TableLayout &itemCtl()
{
    static const TableLayout layout{
        u"ItemCtl"_s,
        {
            {u"NextItemNo"_s, Integer},
            {u"NextItemID"_s, Integer},
            {u"NextInvAdjustmentID"_s, Integer},
            {u"NextInvReceiptID"_s, Integer},
            {u"NextInvReceiptNo"_s, Integer},
        },
        {},
    };
    return layout;
}

const TableLayout &vendCtl()
{
    static const TableLayout layout{
        u"VendCtl"_s,
        {
            {u"NextVendorNo"_s, Integer},
            {u"NextVendorID"_s, Integer},
        },
        {},
    };
    return layout;
}

const TableLayout &arInvCtl()
{
    static const TableLayout layout{
        u"ARInvCtl"_s,
        {
            {u"NextInvoiceID"_s, Integer},
            {u"NextInvoiceNo"_s, Integer},
        },
        {},
    };
    return layout;
}

} // namespace Tallymere::Layouts
