#include "transactions/documents/documentfilter.h"

#include "data/fields.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

QString documentFilter(const ListFilter &filter, const QString &notPosted)
{
    return joinConditions({keyCondition(Fields::WarehouseID, filter.key),
                           markCondition(filter.marked, u"(Posted = true)"_s, notPosted)});
}

} // namespace Tallymere
