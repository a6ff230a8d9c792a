#include "master/masterkinds.h"

#include "base/formats.h"
#include "data/fields.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void formatFields(Engine::Table &tax)
{
    tax.field(Fields::Rate).format = quantityFormat();
    tax.field(Fields::TaxCode).format = lettersFormat(MasterTexts::tr("Code"), Fields::TaxCode);
}

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"taxes"_s;
    kind.oneName = u"tax"_s;
    kind.table = u"Tax"_s;
    kind.keyField = Fields::TaxID;
    kind.nameFields = {Fields::TaxName};
    kind.formatFields = formatFields;

    kind.record.screen = u"frmTaxInv"_s;
    kind.record.caption = MasterTexts::tr("Tax");
    kind.record.newCaption = MasterTexts::tr("New Tax");
    // A rate of 0 counts as missing.
    kind.record.required = {{Fields::TaxName, MasterTexts::tr("Field 'Tax Name' must have a value")},
                            {Fields::TaxCode, MasterTexts::tr("Field 'Code' must have a value")},
                            {Fields::TaxDescription, MasterTexts::tr("Field 'Description' must have a value")},
                            {Fields::Rate, MasterTexts::tr("Field 'Rate' must have a value")}};
    kind.record.taken = MasterTexts::tr("Tax already exists");

    kind.list.screen = u"frmTaxesInv"_s;
    kind.list.caption = MasterTexts::tr("Taxes");
    kind.list.columns = {{Fields::TaxName, MasterTexts::tr("Name"), 170},
                         {Fields::Rate, MasterTexts::tr("Rate"), 70, Qt::AlignRight},
                         {Fields::TaxCode, MasterTexts::tr("Code"), 50},
                         {Fields::TaxDescription, MasterTexts::tr("Description"), 190}};
    kind.list.orders = {{u"TaxName1"_s}};
    kind.list.undeletable = MasterTexts::tr("Unable to delete tax '%1'...");
    kind.list.refusals = {
        {u"Customer"_s, {u"Tax1ID"_s, u"Tax2ID"_s}, MasterTexts::tr("Customer(s) exist for this tax")},
        {u"ARInv"_s, {u"Tax1ID"_s, u"Tax2ID"_s}, MasterTexts::tr("Invoice(s) exist for this tax")}};

    kind.command.action = u"ActionEditTaxes"_s;
    kind.command.caption = MasterTexts::tr("Edit Taxes");
    kind.command.rights = u"Taxes"_s;

    kind.files.systemFields = {Fields::TaxID, Fields::TaxGLAccountID};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::tax()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
