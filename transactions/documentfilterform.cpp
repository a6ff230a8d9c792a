#include "transactions/documentfilterform.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

DocumentFilterScreen::DocumentFilterScreen(ScreenContext &context, const QString &name, const QString &caption,
                                           QWidget *parent)
    : FilterDialog(context,
                   {.name = name,
                    .caption = caption,
                    .boxes = {{.name = u"cboWarehouse"_s, .label = tr("&Location:"), .list = u"Warehse"_s}},
                    .mark = u"Posted"_s,
                    .markLabel = tr("Posted")},
                   parent)
{
}

TfrmInvReceiptsFilter::TfrmInvReceiptsFilter(ScreenContext &context, QWidget *parent)
    : DocumentFilterScreen(context, u"frmInvReceiptsFilter"_s, tr("Inventory Receipts Filter"), parent)
{
}

} // namespace Tallymere
