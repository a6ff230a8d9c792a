#include "data/fields.h"
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
    kind.keyField = Fields::BankID;
    kind.nameFields = {Fields::BankName};
    kind.addFields = [](Engine::Table &table) {
        table.addLookup(Fields::CurrencyName.sized(20),
                        {Fields::CurrencyID, u"Currency"_s, Fields::CurrencyID, Fields::CurrencyName});
    };

    kind.record.screen = u"frmBankInv"_s;
    kind.record.caption = MasterTexts::tr("Bank");
    kind.record.newCaption = MasterTexts::tr("New Bank");
    kind.record.required = {{Fields::BankName, MasterTexts::tr("Field 'Bank Name' must have a value")},
                            {Fields::CurrencyID, MasterTexts::tr("Field 'Currency' must have a value")}};
    kind.record.references = {{Fields::CurrencyID, u"Currency"_s, Fields::CurrencyName,
                               MasterTexts::tr("Currency no longer exists"),
                               MasterTexts::tr("Currency '%1' not found")}};
    kind.record.taken = MasterTexts::tr("Bank already exists");

    kind.list.screen = u"frmBanksInv"_s;
    kind.list.caption = MasterTexts::tr("Banks");
    kind.list.columns = {{Fields::BankName, MasterTexts::tr("Name"), 260},
                         {Fields::CurrencyName, MasterTexts::tr("Currency"), 150}};
    kind.list.orders = {{u"BankName1"_s}};
    kind.list.refusals = {{u"APCheq"_s, {Fields::BankID}, MasterTexts::tr("AP cheque(s) exist for this bank")},
                          {u"ARPmt"_s, {Fields::BankID}, MasterTexts::tr("AR payment(s) exist for this bank")}};

    kind.command.action = u"ActionEditBanks"_s;
    kind.command.caption = MasterTexts::tr("Edit Banks");
    kind.command.rights = u"Banks"_s;

    kind.files.systemFields = {Fields::BankID, Fields::BankGLAccountID};
    return kind;
}

} // namespace

const MasterKind &MasterKinds::bank()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
