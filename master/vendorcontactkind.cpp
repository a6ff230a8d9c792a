#include "master/masterkinds.h"

#include "base/ruleerror.h"
#include "data/personname.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void requireName(const Engine::Table &contact)
{
    if (contact.text(u"FullName").trimmed().isEmpty())
        throw RuleError(MasterTexts::tr("Field 'Contact Name' must have a value"), u"FirstName"_s);
}

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"contacts"_s;
    kind.oneName = u"contact"_s;
    kind.table = u"VContact"_s;
    kind.keyField = u"ContactID"_s;
    kind.record.keyByEngine = true;
    kind.nameFields = {u"FullName"_s};
    kind.addFields = [](Engine::Table &table) {
        table.addCalculated(u"FullName"_s, Engine::FieldType::Text, 60, fullName);
    };

    kind.record.screen = u"frmVContact"_s;
    kind.record.caption = MasterTexts::tr("Vendor Contact");
    kind.record.newCaption = MasterTexts::tr("New Contact");
    kind.record.namesCaption = false;
    kind.record.required = {{u"VendorID"_s, MasterTexts::tr("Field 'Vendor' must have a value")}};
    kind.record.check = requireName;
    kind.record.references = {{u"VendorID"_s, u"Vendor"_s, u"VendorNo"_s,
                               MasterTexts::tr("Vendor no longer exists"), MasterKinds::vendor().record.notFound}};

    kind.list.columns = {{u"LastName"_s, MasterTexts::tr("Last Name"), 160},
                         {u"FirstName"_s, MasterTexts::tr("First Name"), 120},
                         {u"JobTitle"_s, MasterTexts::tr("Job Title"), 200},
                         {u"BusinessPhone"_s, MasterTexts::tr("Phone"), 120}};
    kind.list.orders = {{u"VendorIDFullName"_s}};

    kind.files.systemFields = {u"ContactID"_s};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::vendorContact()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
