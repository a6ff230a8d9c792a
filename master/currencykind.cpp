#include "master/masterkinds.h"

#include "base/formats.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("Tallymere::Currencies", text); }

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"currencies"_s;
    kind.table = u"Currency"_s;
    kind.keyField = u"CurrencyID"_s;
    kind.nameFields = {u"CurrencyName"_s};
    kind.formatFields = [](Engine::Table &table) { table.field(u"ExchangeRate").format = quantityFormat(); };

    kind.screen = u"frmCurrencyInv"_s;
    kind.caption = tr("Currency");
    kind.newCaption = tr("New Currency");
    kind.required = {{u"CurrencyName"_s, tr("Field 'Currency Name' must have a value")}};
    kind.taken = tr("Currency already exists");

    kind.listScreen = u"frmCurrenciesInv"_s;
    kind.listCaption = tr("Currencies");
    kind.columns = {{u"CurrencyName"_s, tr("Name"), 200},
                    {u"ExchangeRate"_s, tr("Exchange Rate"), 120, Qt::AlignRight}};
    kind.orders = {{u"CurrencyName1"_s}};
    kind.refusals = {{u"Bank"_s, {u"CurrencyID"_s}, tr("Bank(s) exist for this currency")},
                     {u"Vendor"_s, {u"CurrencyID"_s}, tr("Vendor(s) exist for this currency")},
                     {u"Customer"_s, {u"CurrencyID"_s}, tr("Customer(s) exist for this currency")}};

    kind.action = u"ActionEditCurrencies"_s;
    kind.actionCaption = tr("Edit Currencies");
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
