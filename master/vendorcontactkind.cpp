#include "master/masterkinds.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "data/personname.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void requireName(const Engine::Table &contact)
{
    if (contact.text(Fields::FullName).trimmed().isEmpty())
        throw RuleError(MasterTexts::tr("Field 'Contact Name' must have a value"), Fields::FirstName);
}

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"contacts"_s;
    kind.oneName = u"contact"_s;
    kind.table = u"VContact"_s;
    kind.keyField = Fields::ContactID;
    kind.record.keyByEngine = true;
    kind.nameFields = {Fields::FullName};
    kind.addFields = [](Engine::Table &table) { table.addCalculated(Fields::FullName.sized(60), fullName); };

    kind.record.screen = u"frmVContact"_s;
    kind.record.caption = MasterTexts::tr("Vendor Contact");
    kind.record.newCaption = MasterTexts::tr("New Contact");
    kind.record.namesCaption = false;
    kind.record.required = {{Fields::VendorID, MasterTexts::tr("Field 'Vendor' must have a value")}};
    kind.record.check = requireName;
    kind.record.references = {{Fields::VendorID, u"Vendor"_s, Fields::VendorNo,
                               MasterTexts::tr("Vendor no longer exists"), MasterKinds::vendor().record.notFound}};

    kind.list.columns = {{Fields::LastName, MasterTexts::tr("Last Name"), 160},
                         {Fields::FirstName, MasterTexts::tr("First Name"), 120},
                         {Fields::JobTitle, MasterTexts::tr("Job Title"), 200},
                         {Fields::BusinessPhone, MasterTexts::tr("Phone"), 120}};
    kind.list.orders = {{u"VendorIDFullName"_s}};

    kind.files.systemFields = {Fields::ContactID};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::vendorContact()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
