#include "master/masterkinds.h"

#include <algorithm>

namespace Tallymere {

QString MasterKind::recordName(const Engine::DataSet &row) const
{
    QStringList parts;
    for (const QString &field : nameFields)
        parts << row.text(field);
    parts.removeAll(QString());
    return parts.join(u": ");
}

bool MasterKind::hasDefault(const QString &field) const
{
    return std::any_of(record.defaults.begin(), record.defaults.end(),
                       [&](const Engine::FieldValue &given) { return given.field == field; });
}

QString MasterKind::filterExpression(const ListFilter &filter) const
{
    return joinConditions({keyCondition(list.filterField, filter.key),
                           markCondition(filter.marked, QStringLiteral("(Suspended = true)"), list.notSuspended)});
}

const QList<const MasterKind *> &MasterKinds::all()
{
    static const QList<const MasterKind *> kinds = {&itemType(),      &item(), &location(), &vendor(),
                                                    &vendorContact(), &tax(),  &currency(), &bank()};
    return kinds;
}

} // namespace Tallymere
