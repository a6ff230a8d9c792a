#include "host/tables/hosttables.h"

using namespace Qt::StringLiterals;

namespace Tallymere::HostTables {

using Engine::FieldDef;
using Engine::IndexDef;
using Engine::TableLayout;
using enum Engine::FieldType;
using enum Engine::IndexOption;

namespace {

QList<FieldDef> address(const QString &prefix)
{
    return {
        {prefix + u"AddressLine1"_s, Text, 35}, {prefix + u"AddressLine2"_s, Text, 35},
        {prefix + u"City"_s, Text, 35},         {prefix + u"StateProv"_s, Text, 20},
        {prefix + u"ZipCode"_s, Text, 10},      {prefix + u"Country"_s, Text, 20},
    };
}

TableLayout config()
{
    return {
        u"Config"_s,
        {
            {u"Organizatn"_s, Text, 60},
            {u"Org_Addr"_s, Text, 60},
            {u"Org_City"_s, Text, 40},
            {u"Org_State"_s, Text, 20},
            {u"Org_ZIP"_s, Text, 10},
            {u"Org_Phone"_s, Text, 30},
            {u"Postal_Format"_s, Text, 3},
        },
        {},
    };
}

TableLayout history()
{
    return {
        u"History"_s,
        {
            {u"History_ID"_s, AutoInc},
            {u"Tran_Date"_s, DateTime},
            {u"Event_Date"_s, Date},
            {u"Event"_s, Text, 120},
            {u"User"_s, Text, 40},
        },
        {
            {{}, u"History_ID"_s, Primary},
            {u"TRAN_DATE"_s, u"Tran_Date"_s},
        },
    };
}

// --- customers and clients ---------------------------------------------------------------------------------------

TableLayout customer()
{
    TableLayout layout{
        u"Customer"_s,
        {
            {u"CustomerID"_s, Integer},
            {u"CustomerNo"_s, Text, 10},
            {u"CustomerName"_s, Text, 40},
        },
        {
            {{}, u"CustomerID"_s, Primary},
            {u"CUSTOMERNO"_s, u"CustomerNo"_s},
            {u"CUSTOMERNAME1"_s, u"CustomerName"_s, CaseInsensitive},
            {u"CURRENCYID"_s, u"CurrencyID"_s},
            {u"TAX1ID"_s, u"Tax1ID"_s},
            {u"TAX2ID"_s, u"Tax2ID"_s},
        },
    };
    layout.fields << address({}) << address(u"ShipTo"_s);
    layout.fields << QList<FieldDef>{
        {u"Phone"_s, Text, 20}, {u"CusTypeID"_s, Integer}, {u"CurrencyID"_s, Integer}, {u"Tax1ID"_s, Integer},
        {u"Tax2ID"_s, Integer}, {u"Client_ID"_s, Integer}, {u"Suspended"_s, Boolean},
    };
    return layout;
}

TableLayout clients()
{
    return {
        u"Clients"_s,
        {
            {u"Client_ID"_s, Integer},
            {u"Last_Name"_s, Text, 30},
            {u"First_Name"_s, Text, 30},
            {u"Address"_s, Text, 60},
            {u"City"_s, Text, 40},
            {u"State"_s, Text, 20},
            {u"ZIP"_s, Text, 10},
            {u"Phone"_s, Text, 20},
            {u"Location_ID"_s, Integer},
            {u"Active"_s, Boolean},
        },
        {
            {{}, u"Client_ID"_s, Primary},
            {u"FULLNAME"_s, u"Last_Name;First_Name"_s, CaseInsensitive},
        },
    };
}

TableLayout individuals()
{
    return {
        u"Individuals"_s,
        {
            {u"Individual_ID"_s, Integer},
            {u"Last_Name"_s, Text, 30},
            {u"First_Name"_s, Text, 30},
            {u"Phone"_s, Text, 20},
        },
        {{{}, u"Individual_ID"_s, Primary}},
    };
}

TableLayout relationships()
{
    return {
        u"Relationships"_s,
        {
            {u"Client_ID"_s, Integer},
            {u"Individual_ID"_s, Integer},
            {u"Relationship"_s, Text, 30},
        },
        {{{}, u"Client_ID;Individual_ID"_s, Primary}},
    };
}

// --- meals and their places -------------------------------------------------------------------------------------

TableLayout locatns()
{
    return {
        u"Locatns"_s,
        {
            {u"Location_ID"_s, Integer},
            {u"Location"_s, Text, 50},
        },
        {{{}, u"Location_ID"_s, Primary}},
    };
}

TableLayout items()
{
    return {
        u"Items"_s,
        {
            {u"Item_ID"_s, Integer},
            {u"Meal_Item"_s, Text, 40},
            {u"Billed_Amount"_s, Money},
            {u"Meal"_s, Text, 2}, // B, L, D, MF, SF, O
        },
        {{{}, u"Item_ID"_s, Primary}},
    };
}

TableLayout services()
{
    return {
        u"Services"_s,
        {
            {u"Service_ID"_s, Integer},
            {u"Service"_s, Text, 40},
        },
        {{{}, u"Service_ID"_s, Primary}},
    };
}

TableLayout deliveri()
{
    return {
        u"Deliveri"_s,
        {
            {u"Delivery_ID"_s, AutoInc},
            {u"Delivery_Date"_s, Date},
            {u"Client_ID"_s, Integer},
            {u"Item_ID"_s, Integer},
            {u"Service_ID"_s, Integer},
            {u"Quantity"_s, Integer},
        },
        {
            {{}, u"Delivery_ID"_s, Primary},
            {u"DELIVERY_DATE"_s, u"Delivery_Date"_s},
        },
    };
}

TableLayout mealCrdt()
{
    return {
        u"MealCrdt"_s,
        {
            {u"Credit_ID"_s, AutoInc},
            {u"Client_ID"_s, Integer},
            {u"Credit_Date"_s, Date},
            {u"Amount"_s, Money},
        },
        {{{}, u"Credit_ID"_s, Primary}},
    };
}

// --- accounting -------------------------------------------------------------------------------------------------

// Documents of customers and vendors: a key, the partner, a number, a date, an amount, and what else is given.
TableLayout document(const QString &name, const QString &key, const QString &partner, const QList<FieldDef> &others)
{
    TableLayout layout{
        name,
        {
            {key, Integer},
            {partner, Integer},
            {u"DocumentNo"_s, Text, 10},
            {u"DocumentDate"_s, Date},
            {u"Amount"_s, Money},
        },
        {
            {{}, key, Primary},
            {partner.toUpper(), partner},
        },
    };
    layout.fields << others;
    for (const FieldDef &field : others)
        layout.indexes << IndexDef{field.name.toUpper(), field.name};
    return layout;
}

TableLayout glAmounts(const QString &name)
{
    return {
        name,
        {
            {u"GLAccountID"_s, Integer},
            {u"GLYear"_s, SmallInt},
            {u"GLPeriod"_s, SmallInt},
            {u"Amount"_s, Money},
        },
        {{{}, u"GLAccountID;GLYear;GLPeriod"_s, Primary}},
    };
}

TableLayout jv()
{
    return {
        u"Jv"_s,
        {
            {u"JVID"_s, Integer},
            {u"GLYear"_s, SmallInt},
            {u"GLPeriod"_s, SmallInt},
            {u"JVDate"_s, Date},
            {u"Description"_s, Text, 50},
            {u"Posted"_s, Boolean},
        },
        {{{}, u"JVID"_s, Primary}},
    };
}

TableLayout jvDet()
{
    return {
        u"JVDet"_s,
        {
            {u"JVID"_s, Integer},
            {u"Seq"_s, Integer},
            {u"GLAccountID"_s, Integer},
            {u"Amount"_s, Money},
        },
        {{{}, u"JVID;Seq"_s, Primary}},
    };
}

TableLayout balances()
{
    return {
        u"CBalance"_s,
        {
            {u"CustomerID"_s, Integer},
            {u"Balance"_s, Money},
        },
        {{{}, u"CustomerID"_s, Primary}},
    };
}

TableLayout cusType()
{
    return {
        u"CusType"_s,
        {
            {u"CusTypeID"_s, Integer},
            {u"TypeName"_s, Text, 40},
        },
        {
            {{}, u"CusTypeID"_s, Primary},
            {u"TYPENAME1"_s, u"TypeName"_s, CaseInsensitive},
        },
    };
}

TableLayout logo()
{
    return {
        u"Logo"_s,
        {
            {u"LogoID"_s, Integer}, {u"Picture"_s, Memo}, // base64
        },
        {{{}, u"LogoID"_s, Primary}},
    };
}

TableLayout counters(const QString &name, const QStringList &fields)
{
    TableLayout layout{name, {}, {}};
    for (const QString &field : fields)
        layout.fields << FieldDef{field, Integer};
    return layout;
}

} // namespace

const QList<TableLayout> &layouts()
{
    static const QList<TableLayout> tables{
        config(),
        history(),
        counters(u"CustCtl"_s, {u"NextCustomerNo"_s, u"NextCustomerID"_s}),
        customer(),
        cusType(),
        clients(),
        individuals(),
        relationships(),
        locatns(),
        items(),
        services(),
        deliveri(),
        mealCrdt(),
        document(u"Invoice"_s, u"Invoice_ID"_s, u"Client_ID"_s, {}),
        document(u"ARInv"_s, u"InvoiceID"_s, u"CustomerID"_s, {{u"Tax1ID"_s, Integer}, {u"Tax2ID"_s, Integer}}),
        document(u"APInv"_s, u"InvoiceID"_s, u"VendorID"_s, {}),
        document(u"ARPmt"_s, u"PaymentID"_s, u"CustomerID"_s, {{u"BankID"_s, Integer}}),
        document(u"APCheq"_s, u"ChequeID"_s, u"VendorID"_s, {{u"BankID"_s, Integer}}),
        jv(),
        jvDet(),
        counters(u"JVCtl"_s, {u"NextJVID"_s}),
        glAmounts(u"GLHist"_s),
        glAmounts(u"GLActual"_s),
        balances(),
        logo(),
    };
    return tables;
}

} // namespace Tallymere::HostTables
