#include "master/masterkinds.h"

#include "base/formats.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void formatFields(Engine::Table &tax)
{
    tax.field(u"Rate").format = quantityFormat();
    tax.field(u"TaxCode").format = lettersFormat(MasterTexts::tr("Code"), u"TaxCode"_s);
}

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"taxes"_s;
    kind.table = u"Tax"_s;
    kind.keyField = u"TaxID"_s;
    kind.nameFields = {u"TaxName"_s};
    kind.formatFields = formatFields;

    kind.screen = u"frmTaxInv"_s;
    kind.caption = MasterTexts::tr("Tax");
    kind.newCaption = MasterTexts::tr("New Tax");
    // A rate of 0 counts as missing.
    kind.required = {{u"TaxName"_s, MasterTexts::tr("Field 'Tax Name' must have a value")},
                     {u"TaxCode"_s, MasterTexts::tr("Field 'Code' must have a value")},
                     {u"TaxDescription"_s, MasterTexts::tr("Field 'Description' must have a value")},
                     {u"Rate"_s, MasterTexts::tr("Field 'Rate' must have a value")}};
    kind.taken = MasterTexts::tr("Tax already exists");

    kind.listScreen = u"frmTaxesInv"_s;
    kind.listCaption = MasterTexts::tr("Taxes");
    kind.columns = {{u"TaxName"_s, MasterTexts::tr("Name"), 170},
                    {u"Rate"_s, MasterTexts::tr("Rate"), 70, Qt::AlignRight},
                    {u"TaxCode"_s, MasterTexts::tr("Code"), 50},
                    {u"TaxDescription"_s, MasterTexts::tr("Description"), 190}};
    kind.orders = {{u"TaxName1"_s}};
    kind.undeletable = MasterTexts::tr("Unable to delete tax '%1'...");
    kind.refusals = {{u"Customer"_s, {u"Tax1ID"_s, u"Tax2ID"_s}, MasterTexts::tr("Customer(s) exist for this tax")},
                     {u"ARInv"_s, {u"Tax1ID"_s, u"Tax2ID"_s}, MasterTexts::tr("Invoice(s) exist for this tax")}};

    kind.action = u"ActionEditTaxes"_s;
    kind.actionCaption = MasterTexts::tr("Edit Taxes");
    kind.rights = u"Taxes"_s;

    kind.systemFields = {u"TaxID"_s, u"TaxGLAccountID"_s};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::tax()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
