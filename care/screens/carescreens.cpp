#include "care/screens/carescreens.h"

#include "care/screens/auditlist.h"
#include "care/screens/backupscreen.h"
#include "care/screens/checkbooks.h"
#include "care/screens/restorescreen.h"
#include "controls/windows/screencontext.h"
#include "data/datamodule.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

template <typename Screen> CareScreen::Make make()
{
    return [](ScreenContext &context, QWidget *parent) { return new Screen(context, parent); };
}

} // namespace

QList<CareScreen> careScreens()
{
    return {
        {u"frmAudit"_s, make<TfrmAudit>()},
        {u"frmCheckBooks"_s, make<TfrmCheckBooks>()},
        {u"frmBackUp"_s, make<TfrmBackUp>()},
        {u"frmRestore"_s,
         [](ScreenContext &context, QWidget *parent) {
             return new TfrmRestore(context.prompts, context.data.currentUser(), parent);
         }},
    };
}

} // namespace Tallymere
