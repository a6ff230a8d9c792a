#include "frame/screenregistry.h"

#include "controls/listscreen.h"
#include "controls/screencontext.h"
#include "master/masterkind.h"
#include "master/screens/company.h"
#include "master/screens/masterlistscreen.h"
#include "master/screens/masterscreens.h"
#include "transactions/documentkind.h"
#include "transactions/screens/documentlistscreen.h"
#include "transactions/screens/documentscreens.h"
#include "transactions/screens/invhistory.h"
#include "transactions/screens/invtotals.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

template <typename Screen> QWidget *make(ScreenContext &context, QWidget *parent)
{
    return new Screen(context, parent);
}

template <typename Screen> ScreenKind listScreen(const decltype(ScreenKind::create) &create)
{
    const auto list = [](QWidget &screen) -> Screen & { return static_cast<Screen &>(screen); };
    return {.create = create,
            .refresh = [list](QWidget &screen) { list(screen).refreshList(); },
            .resetFilter = [list](QWidget &screen) { list(screen).resetFilter(); },
            .showHandler = [list](QWidget &screen) { list(screen).showAgain(); },
            .post = {}};
}

// A list of documents, which also posts them.
ScreenKind documentList(const DocumentScreens &screens)
{
    ScreenKind kind = listScreen<ListScreen>(screens.makeList);
    kind.post = [](QWidget &screen) { static_cast<DocumentListScreen &>(screen).mnuPostClick(); };
    return kind;
}

ScreenKind organization()
{
    ScreenKind kind;
    kind.create = make<TfrmCompany>;
    kind.showHandler = [](QWidget &screen) { static_cast<TfrmCompany &>(screen).showAgain(); };
    return kind;
}

} // namespace

ScreenRegistry productScreens()
{
    ScreenRegistry screens;
    for (const MasterScreen &screen : masterScreens())
        screens.add(screen.kind.listScreen, listScreen<ListScreen>(screen.make));
    screens.add(u"frmCompany"_s, organization());
    for (const DocumentScreens &screen : documentScreens())
        screens.add(screen.kind.listScreen, documentList(screen));
    screens.add(u"frmInvTotals"_s, listScreen<TfrmInvTotals>(make<TfrmInvTotals>));
    screens.add(u"frmInvHistory"_s, listScreen<TfrmInvHistory>(make<TfrmInvHistory>));
    return screens;
}

} // namespace Tallymere
