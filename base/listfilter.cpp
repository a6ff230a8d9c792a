#include "base/listfilter.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

QString keyCondition(const QString &field, int key)
{
    return key > 0 ? u"(%1 = %2)"_s.arg(field).arg(key) : QString();
}

QString keyConditions(const QList<KeyOfField> &keys)
{
    QStringList conditions;
    for (const KeyOfField &of : keys)
        conditions << keyCondition(of.field, of.key);
    return joinConditions(conditions);
}

QString markCondition(ListFilter::Marked marked, const QString &yes, const QString &no)
{
    switch (marked) {
    case ListFilter::Marked::Yes:
        return yes;
    case ListFilter::Marked::No:
        return no;
    case ListFilter::Marked::All:
        break;
    }
    return {};
}

QString joinConditions(const QStringList &conditions)
{
    QStringList given = conditions;
    given.removeAll(QString());
    return given.join(" AND "_L1);
}

} // namespace Tallymere
