#include "transactions/documentfilter.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace Tallymere {

QString joinConditions(const QStringList &conditions)
{
    QStringList given = conditions;
    given.removeAll(QString());
    return given.join(" AND "_L1);
}

QString DocumentFilter::expression(const QString &notPosted) const
{
    const QString location = warehouseId > 0 ? u"(WarehouseID = %1)"_s.arg(warehouseId) : QString();
    switch (posted) {
    case Posted::All:
        return location;
    case Posted::Yes:
        return joinConditions({location, u"(Posted = true)"_s});
    case Posted::No:
        return joinConditions({location, notPosted});
    }
    return location;
}

} // namespace Tallymere
