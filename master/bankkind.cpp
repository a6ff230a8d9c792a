#include "master/masterkinds.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

MasterKind describe()
{
    MasterKind kind;
    kind.name = u"banks"_s;
    kind.oneName = u"bank"_s;
    kind.table = u"Bank"_s;
    kind.keyField = u"BankID"_s;
    kind.nameFields = {u"BankName"_s};
    kind.addFields = [](Engine::Table &table) {
        table.addLookup(u"CurrencyName"_s, Engine::FieldType::Text, 20,
                        {u"CurrencyID"_s, u"Currency"_s, u"CurrencyID"_s, u"CurrencyName"_s});
    };

    kind.record.screen = u"frmBankInv"_s;
    kind.record.caption = MasterTexts::tr("Bank");
    kind.record.newCaption = MasterTexts::tr("New Bank");
    kind.record.required = {{u"BankName"_s, MasterTexts::tr("Field 'Bank Name' must have a value")},
                            {u"CurrencyID"_s, MasterTexts::tr("Field 'Currency' must have a value")}};
    kind.record.references = {{u"CurrencyID"_s, u"Currency"_s, u"CurrencyName"_s,
                               MasterTexts::tr("Currency no longer exists"),
                               MasterTexts::tr("Currency '%1' not found")}};
    kind.record.taken = MasterTexts::tr("Bank already exists");

    kind.list.screen = u"frmBanksInv"_s;
    kind.list.caption = MasterTexts::tr("Banks");
    kind.list.columns = {{u"BankName"_s, MasterTexts::tr("Name"), 260},
                         {u"CurrencyName"_s, MasterTexts::tr("Currency"), 150}};
    kind.list.orders = {{u"BankName1"_s}};
    kind.list.refusals = {{u"APCheq"_s, {u"BankID"_s}, MasterTexts::tr("AP cheque(s) exist for this bank")},
                          {u"ARPmt"_s, {u"BankID"_s}, MasterTexts::tr("AR payment(s) exist for this bank")}};

    kind.command.action = u"ActionEditBanks"_s;
    kind.command.caption = MasterTexts::tr("Edit Banks");
    kind.command.rights = u"Banks"_s;

    kind.files.systemFields = {u"BankID"_s, u"BankGLAccountID"_s};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::bank()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
