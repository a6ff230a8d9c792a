#include "master/masterkinds.h"

#include "base/formats.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"currencies"_s;
    kind.table = u"Currency"_s;
    kind.keyField = u"CurrencyID"_s;
    kind.nameFields = {u"CurrencyName"_s};
    kind.formatFields = [](Engine::Table &table) { table.field(u"ExchangeRate").format = quantityFormat(); };

    kind.screen = u"frmCurrencyInv"_s;
    kind.caption = MasterTexts::tr("Currency");
    kind.newCaption = MasterTexts::tr("New Currency");
    kind.required = {{u"CurrencyName"_s, MasterTexts::tr("Field 'Currency Name' must have a value")}};
    kind.taken = MasterTexts::tr("Currency already exists");

    kind.listScreen = u"frmCurrenciesInv"_s;
    kind.listCaption = MasterTexts::tr("Currencies");
    kind.columns = {{u"CurrencyName"_s, MasterTexts::tr("Name"), 200},
                    {u"ExchangeRate"_s, MasterTexts::tr("Exchange Rate"), 120, Qt::AlignRight}};
    kind.orders = {{u"CurrencyName1"_s}};
    kind.refusals = {{u"Bank"_s, {u"CurrencyID"_s}, MasterTexts::tr("Bank(s) exist for this currency")},
                     {u"Vendor"_s, {u"CurrencyID"_s}, MasterTexts::tr("Vendor(s) exist for this currency")},
                     {u"Customer"_s, {u"CurrencyID"_s}, MasterTexts::tr("Customer(s) exist for this currency")}};

    kind.action = u"ActionEditCurrencies"_s;
    kind.actionCaption = MasterTexts::tr("Edit Currencies");
    kind.rights = u"Currencies"_s;

    kind.systemFields = {
        u"CurrencyID"_s,    u"GainLossExchangeGLAccntID"_s, u"APGLAccountID"_s,          u"APDiscGLAccountID"_s,
        u"ARGLAccountID"_s, u"ARDiscGLAccountID"_s,         u"DfltWriteOffGLAccountID"_s};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::currency()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
