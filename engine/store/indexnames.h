#pragma once

#include "engine/values/layout.h"

namespace Engine {

// In both stores the names of indexes are unique over all tables, in the engine within one: the stored name carries
// the table's ("Vendor_VENDORNO", the primary index "Vendor_PRIMARY").
inline QString prefixedIndexName(const QString &table, const IndexDef &index)
{
    return table + u'_' + (index.name.isEmpty() ? QStringLiteral("PRIMARY") : index.name);
}

// The index's name within its table, or null when the engine did not make the index. The primary one gives "".
inline QString indexNameFromPrefixed(const QString &table, const QString &stored)
{
    if (!stored.startsWith(table + u'_', Qt::CaseInsensitive))
        return {};
    const QString name = stored.mid(table.size() + 1);
    return name.compare(QLatin1StringView("PRIMARY"), Qt::CaseInsensitive) == 0 ? QStringLiteral("") : name;
}

} // namespace Engine
