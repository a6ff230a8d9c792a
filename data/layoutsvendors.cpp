#include "data/layouts.h"

#include "data/fields.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Layouts {

using Engine::FieldDef;
using Engine::TableLayout;
using enum Engine::IndexOption;

namespace {

// What is kept of a vendor's contact and of a salesman.
QList<FieldDef> personFields()
{
    return {
        Fields::LastName.sized(30),
        Fields::FirstName.sized(30),
        Fields::JobTitle.sized(40),
        Fields::BusinessPhone.sized(20),
        Fields::BusinessPhoneExt.sized(10),
        Fields::BusinessPhone2.sized(20),
        Fields::BusinessPhone2Ext.sized(10),
        Fields::HomePhone.sized(20),
        Fields::Fax.sized(20),
        Fields::Cellular.sized(20),
        Fields::Pager.sized(20),
        Fields::EMail.sized(40),
        Fields::Notes,
    };
}

} // namespace

const TableLayout &vendor()
{
    static const TableLayout layout{
        u"Vendor"_s,
        {
            Fields::VendorID,
            Fields::VendorNo.sized(10),
            Fields::VendorName.sized(40),
            Fields::AddressLine1.sized(35),
            Fields::AddressLine2.sized(35),
            Fields::City.sized(35),
            Fields::StateProv.sized(20),
            Fields::ZipCode.sized(10),
            Fields::Country.sized(20),
            Fields::Contact.sized(40),
            Fields::Phone.sized(20),
            Fields::Fax.sized(20),
            Fields::EMail.sized(40),
            Fields::WebPage.sized(30),
            Fields::Notes,
            Fields::TaxNo.sized(12),
            Fields::DefaultInvDescription.sized(40),
            Fields::DiscPC,
            Fields::DiscDays,
            Fields::NetDays,
            Fields::DelayDays,
            Fields::CurrencyID,
            Fields::Suspended,
        },
        {
            {{}, Fields::VendorID, Primary},
            {u"VENDORNO"_s, Fields::VendorNo},
            {u"VENDORNAME1"_s, Fields::VendorName, CaseInsensitive},
            {u"CURRENCYID"_s, Fields::CurrencyID},
        },
    };
    return layout;
}

const TableLayout &vContact()
{
    static const TableLayout layout{
        u"VContact"_s,
        QList<FieldDef>{Fields::VendorID, Fields::ContactID} + personFields(),
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
        QList<FieldDef>{Fields::SalesmanID} + personFields(),
        {
            {{}, Fields::SalesmanID, Primary},
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
            Fields::VendorID,
            Fields::Balance,
        },
        {
            {{}, Fields::VendorID, Primary},
        },
    };
    return layout;
}

const TableLayout &itemCtl()
{
    static const TableLayout layout{
        u"ItemCtl"_s,
        {
            Fields::NextItemNo,
            Fields::NextItemID,
            Fields::NextInvAdjustmentID,
            Fields::NextInvReceiptID,
            Fields::NextInvReceiptNo,
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
            Fields::NextVendorNo,
            Fields::NextVendorID,
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
            Fields::NextInvoiceID,
            Fields::NextInvoiceNo,
        },
        {},
    };
    return layout;
}

} // namespace Tallymere::Layouts
