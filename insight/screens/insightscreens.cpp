#include "insight/screens/insightscreens.h"

#include "insight/screens/firststeps.h"
#include "insight/screens/monthend.h"
#include "insight/screens/stockasof.h"
#include "insight/screens/whattobuy.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

template <typename Screen> InsightScreen::Make make()
{
    return [](ScreenContext &context, QWidget *parent) { return new Screen(context, parent); };
}

} // namespace

QList<InsightScreen> insightScreens()
{
    return {
        {u"frmStockAsOf"_s, make<TfrmStockAsOf>()},
        {u"frmWhatToBuy"_s, make<TfrmWhatToBuy>()},
        {u"frmFirstSteps"_s, make<TfrmFirstSteps>()},
        {u"frmMonthEnd"_s, make<TfrmMonthEnd>()},
    };
}

} // namespace Tallymere
