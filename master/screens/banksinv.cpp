#include "master/screens/banksinv.h"

#include "ui_bankinv.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmBanksInv::TfrmBanksInv(ScreenContext &context, QWidget *parent)
    : MasterListScreen(context, MasterKinds::bank(), RecordScreens::makes<TfrmBankInv>(), parent)
{
    buildList([](ListDescription &list) {
        menu(list, tr("&View")).commands.prepend({.name = u"mnuBankBook"_s, .caption = tr("&Bank Book")});
    });
}

} // namespace Tallymere
