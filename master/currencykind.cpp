#include "master/masterkinds.h"

#include "base/formats.h"
#include "data/fields.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"currencies"_s;
    kind.oneName = u"currency"_s;
    kind.table = u"Currency"_s;
    kind.keyField = Fields::CurrencyID;
    kind.nameFields = {Fields::CurrencyName};
    kind.formatFields = [](Engine::Table &table) { table.field(Fields::ExchangeRate).format = quantityFormat(); };

    kind.record.screen = u"frmCurrencyInv"_s;
    kind.record.caption = MasterTexts::tr("Currency");
    kind.record.newCaption = MasterTexts::tr("New Currency");
    kind.record.required = {{Fields::CurrencyName, MasterTexts::tr("Field 'Currency Name' must have a value")}};
    kind.record.taken = MasterTexts::tr("Currency already exists");

    kind.list.screen = u"frmCurrenciesInv"_s;
    kind.list.caption = MasterTexts::tr("Currencies");
    kind.list.columns = {{Fields::CurrencyName, MasterTexts::tr("Name"), 200},
                         {Fields::ExchangeRate, MasterTexts::tr("Exchange Rate"), 120, Qt::AlignRight}};
    kind.list.orders = {{u"CurrencyName1"_s}};
    kind.list.refusals = {
        {u"Bank"_s, {Fields::CurrencyID}, MasterTexts::tr("Bank(s) exist for this currency")},
        {u"Vendor"_s, {Fields::CurrencyID}, MasterTexts::tr("Vendor(s) exist for this currency")},
        {u"Customer"_s, {Fields::CurrencyID}, MasterTexts::tr("Customer(s) exist for this currency")}};

    kind.command.action = u"ActionEditCurrencies"_s;
    kind.command.caption = MasterTexts::tr("Edit Currencies");
    kind.command.rights = u"Currencies"_s;

    kind.files.systemFields = {Fields::CurrencyID,
                               Fields::GainLossExchangeGLAccntID,
                               Fields::APGLAccountID,
                               Fields::APDiscGLAccountID,
                               Fields::ARGLAccountID,
                               Fields::ARDiscGLAccountID,
                               Fields::DfltWriteOffGLAccountID};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::currency()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
