#include "transactions/screens/invtotalsfilter.h"

#include "transactions/totalsview.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmInvTotalsFilter::TfrmInvTotalsFilter(ScreenContext &context, QWidget *parent)
    : StockFilterDialog(context, {.name = u"frmInvTotalsFilter"_s, .caption = tr("Inventory Totals Filter")},
                        parent)
{
}

QString TfrmInvTotalsFilter::expression() const { return TotalsView::filterExpression(itemId(), warehouseId()); }

} // namespace Tallymere
