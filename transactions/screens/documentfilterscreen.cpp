#include "transactions/screens/documentfilterscreen.h"

#include "data/fields.h"
#include "transactions/documents/documentkind.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

DocumentFilterScreen::DocumentFilterScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent)
    : FilterDialog(context,
                   {.name = kind.list.filter.screen,
                    .caption = kind.list.filter.caption,
                    .boxes = kind.list.filter.boxes,
                    .mark = Fields::Posted,
                    .markLabel = tr("Posted")},
                   parent)
{
}

} // namespace Tallymere
