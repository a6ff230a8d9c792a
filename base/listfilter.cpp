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

QString wordsCondition(const QStringList &fields, const QString &words)
{
    QStringList conditions;
    for (QString word : words.simplified().split(u' ', Qt::SkipEmptyParts)) {
        word.replace(u'\'', "''"_L1);
        QStringList places;
        for (const QString &field : fields)
            places << u"%1 CONTAINS '%2'"_s.arg(field, word);
        conditions << u'(' + places.join(" OR "_L1) + u')';
    }
    return joinConditions(conditions);
}

QString daysCondition(const QString &field, QDate from, QDate to)
{
    const auto compared = [&field](const QString &sign, QDate day) {
        return day.isValid() ? u"(%1 %2 '%3')"_s.arg(field, sign, day.toString(Qt::ISODate)) : QString();
    };
    return joinConditions({compared(u">="_s, from), compared(u"<="_s, to)});
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
