#include "master/masterkinds.h"

#include "base/formats.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("Tallymere::Taxes", text); }

void formatFields(Engine::Table &tax)
{
    tax.field(u"Rate").format = quantityFormat();
    tax.field(u"TaxCode").format = lettersFormat(tr("Code"), u"TaxCode"_s);
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
    kind.caption = tr("Tax");
    kind.newCaption = tr("New Tax");
    // A rate of 0 counts as missing.
    kind.required = {{u"TaxName"_s, tr("Field 'Tax Name' must have a value")},
                     {u"TaxCode"_s, tr("Field 'Code' must have a value")},
                     {u"TaxDescription"_s, tr("Field 'Description' must have a value")},
                     {u"Rate"_s, tr("Field 'Rate' must have a value")}};
    kind.taken = tr("Tax already exists");

    kind.listScreen = u"frmTaxesInv"_s;
    kind.listCaption = tr("Taxes");
    kind.columns = {{u"TaxName"_s, tr("Name"), 170},
                    {u"Rate"_s, tr("Rate"), 70, Qt::AlignRight},
                    {u"TaxCode"_s, tr("Code"), 50},
                    {u"TaxDescription"_s, tr("Description"), 190}};
    kind.orders = {{u"TaxName1"_s}};
    kind.undeletable = tr("Unable to delete tax '%1'...");
    kind.refusals = {{u"Customer"_s, {u"Tax1ID"_s, u"Tax2ID"_s}, tr("Customer(s) exist for this tax")},
                     {u"ARInv"_s, {u"Tax1ID"_s, u"Tax2ID"_s}, tr("Invoice(s) exist for this tax")}};

    kind.action = u"ActionEditTaxes"_s;
    kind.actionCaption = tr("Edit Taxes");
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
