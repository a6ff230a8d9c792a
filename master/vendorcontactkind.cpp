#include "master/masterkinds.h"

#include "base/ruleerror.h"
#include "data/personname.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("Tallymere::VendorContacts", text); }

void requireName(const Engine::Table &contact)
{
    if (contact.text(u"FullName").trimmed().isEmpty())
        throw RuleError(tr("Field 'Contact Name' must have a value"), u"FirstName"_s);
}

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"contacts"_s;
    kind.table = u"VContact"_s;
    kind.keyField = u"ContactID"_s;
    kind.keyByEngine = true;
    kind.nameFields = {u"FullName"_s};
    kind.addFields = [](Engine::Table &table) {
        table.addCalculated(u"FullName"_s, Engine::FieldType::Text, 60, fullName);
    };

    kind.screen = u"frmVContact"_s;
    kind.caption = tr("Vendor Contact");
    kind.newCaption = tr("New Contact");
    kind.namesCaption = false;
    kind.required = {{u"VendorID"_s, tr("Field 'Vendor' must have a value")}};
    kind.check = requireName;
    kind.references = {
        {u"VendorID"_s, u"Vendor"_s, u"VendorNo"_s, tr("Vendor no longer exists"), MasterKinds::vendor().notFound}};

    kind.columns = {{u"LastName"_s, tr("Last Name"), 160},
                    {u"FirstName"_s, tr("First Name"), 120},
                    {u"JobTitle"_s, tr("Job Title"), 200},
                    {u"BusinessPhone"_s, tr("Phone"), 120}};
    kind.orders = {{u"VendorIDFullName"_s}};

    kind.systemFields = {u"ContactID"_s};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::vendorContact()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
