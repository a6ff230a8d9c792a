#include "frame/finder/findsource.h"

namespace Tallymere {

QString recordId(const QString &table, qint64 key) { return table + u'/' + QString::number(key); }

std::optional<qint64> keyInId(const QString &id, const QString &table)
{
    if (!id.startsWith(table + u'/'))
        return std::nullopt;
    bool isNumber = false;
    const qint64 key = QStringView(id).mid(table.size() + 1).toLongLong(&isNumber);
    return isNumber ? std::optional(key) : std::nullopt;
}

} // namespace Tallymere
