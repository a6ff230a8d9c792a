#include "transactions/documentfilter.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

QString documentFilter(const ListFilter &filter, const QString &notPosted)
{
    return joinConditions({keyCondition(u"WarehouseID"_s, filter.key),
                           markCondition(filter.marked, u"(Posted = true)"_s, notPosted)});
}

} // namespace Tallymere
