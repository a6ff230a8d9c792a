#include "frame/screenregistry.h"

#include "care/screens/carescreens.h"
#include "controls/windows/screencontext.h"
#include "controls/windows/screenmetrics.h"
#include "insight/screens/insightscreens.h"
#include "master/masterkind.h"
#include "master/screens/company.h"
#include "master/screens/masterlistscreen.h"
#include "master/screens/masterscreens.h"
#include "reports/screens/blankinventoryreportselection.h"
#include "reports/screens/invreports.h"
#include "transactions/documents/documentkind.h"
#include "transactions/screens/documentlistscreen.h"
#include "transactions/screens/documentpostscreen.h"
#include "transactions/screens/documentscreens.h"
#include "transactions/screens/enterinventory.h"
#include "transactions/screens/invhistory.h"
#include "transactions/screens/invtotals.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

template <typename Screen> QWidget *make(ScreenContext &context, QWidget *parent)
{
    return new Screen(context, parent);
}

// Posting by itself, without the list; that shows the documents anew if it is open.
ScreenKind postDialog(const DocumentKind &kind)
{
    const auto make = [&kind](ScreenContext &context, QWidget *parent) {
        auto *dialog = new DocumentPostScreen(context, kind, parent);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(dialog, &QDialog::accepted, dialog, [dialog, &kind] {
            dialog->guard().run([&kind] { refreshOpenList(kind.list.screen); });
            if (!dialog->hasFailed())
                dialog->sayPosted();
        });
        return dialog;
    };
    return {make};
}

} // namespace

ScreenRegistry productScreens()
{
    ScreenRegistry screens;
    for (const MasterScreen &screen : masterScreens())
        screens.add(screen.kind.list.screen, {screen.make});
    screens.add(u"frmCompany"_s, {make<TfrmCompany>});
    for (const DocumentScreens &screen : documentScreens()) {
        screens.add(screen.kind.list.screen, {.create = screen.makeList, .posts = true});
        screens.add(screen.kind.posting.screen, postDialog(screen.kind));
    }
    screens.add(u"FormEnterInventory"_s, {make<TFormEnterInventory>});
    screens.add(u"FormBlankInventoryReportSelection"_s, {make<TFormBlankInventoryReportSelection>});
    screens.add(u"frmInvTotals"_s, {make<TfrmInvTotals>});
    screens.add(u"frmInvHistory"_s, {make<TfrmInvHistory>});
    screens.add(u"frmInvReports"_s, {make<TfrmInvReports>});
    for (const InsightScreen &screen : insightScreens())
        screens.add(screen.name, {screen.make});
    for (const CareScreen &screen : careScreens())
        screens.add(screen.name, {screen.make});
    return screens;
}

} // namespace Tallymere
