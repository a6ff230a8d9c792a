#include "transactions/screens/invtotalsfilter.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmInvTotalsFilter::TfrmInvTotalsFilter(ScreenContext &context, QWidget *parent)
    : StockFilterDialog(context, {.name = u"frmInvTotalsFilter"_s, .caption = tr("Inventory Totals Filter")},
                        parent)
{
}

} // namespace Tallymere
