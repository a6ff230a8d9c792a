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
    kind.oneName = u"currency"_s;
    kind.table = u"Currency"_s;
    kind.keyField = u"CurrencyID"_s;
    kind.nameFields = {u"CurrencyName"_s};
    kind.formatFields = [](Engine::Table &table) { table.field(u"ExchangeRate").format = quantityFormat(); };

    kind.record.screen = u"frmCurrencyInv"_s;
    kind.record.caption = MasterTexts::tr("Currency");
    kind.record.newCaption = MasterTexts::tr("New Currency");
    kind.record.required = {{u"CurrencyName"_s, MasterTexts::tr("Field 'Currency Name' must have a value")}};
    kind.record.taken = MasterTexts::tr("Currency already exists");

    kind.list.screen = u"frmCurrenciesInv"_s;
    kind.list.caption = MasterTexts::tr("Currencies");
    kind.list.columns = {{u"CurrencyName"_s, MasterTexts::tr("Name"), 200},
                         {u"ExchangeRate"_s, MasterTexts::tr("Exchange Rate"), 120, Qt::AlignRight}};
    kind.list.orders = {{u"CurrencyName1"_s}};
    kind.list.refusals = {
        {u"Bank"_s, {u"CurrencyID"_s}, MasterTexts::tr("Bank(s) exist for this currency")},
        {u"Vendor"_s, {u"CurrencyID"_s}, MasterTexts::tr("Vendor(s) exist for this currency")},
        {u"Customer"_s, {u"CurrencyID"_s}, MasterTexts::tr("Customer(s) exist for this currency")}};

    kind.command.action = u"ActionEditCurrencies"_s;
    kind.command.caption = MasterTexts::tr("Edit Currencies");
    kind.command.rights = u"Currencies"_s;

    kind.files.systemFields = {
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
