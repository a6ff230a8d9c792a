#include "master/screens/banksinv.h"

#include "master/masterkinds.h"
#include "master/screens/masterrecordscreen.h"
#include "ui_bankinv.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
using TfrmBankInv = MasterForm<MasterKinds::bank, Ui::TfrmBankInv>;
} // namespace

TfrmBanksInv::TfrmBanksInv(ScreenContext &context, QWidget *parent)
    : MasterListScreen(context, MasterKinds::bank(), RecordScreens::makes<TfrmBankInv>(), parent)
{
    buildList([](ListDescription &list) {
        menu(list, tr("&View")).commands.prepend({.name = u"mnuBankBook"_s, .caption = tr("&Bank Book")});
    });
}

} // namespace Tallymere
