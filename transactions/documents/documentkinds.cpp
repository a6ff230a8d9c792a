#include "transactions/documents/documentkinds.h"

#include "data/fields.h"
#include "transactions/texts.h"

#include <algorithm>

namespace Tallymere {

const QList<const DocumentKind *> &DocumentKinds::all()
{
    static const QList<const DocumentKind *> kinds = {&receipt(), &usage(), &adjustment()};
    return kinds;
}

const DocumentKind *DocumentKinds::find(const QString &name)
{
    const auto found =
        std::find_if(all().begin(), all().end(), [&](const DocumentKind *kind) { return kind->name == name; });
    return found == all().end() ? nullptr : *found;
}

GridColumn DocumentKinds::postedColumn()
{
    return {.field = Fields::Posted,
            .title = TransactionsTexts::tr("Posted"),
            .width = 60,
            .openWord = TransactionsTexts::tr("Open")};
}

} // namespace Tallymere
