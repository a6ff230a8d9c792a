#pragma once

#include "engine/values/userlocale.h"

#include <QString>

namespace Engine {

// A text that counts, in the form for one or for any other number: plural(3, tr("%n item"), tr("%n items")).
inline QString plural(qint64 count, QString one, QString many)
{
    return (count == 1 ? one : many).replace(QLatin1String("%n"), countText(count));
}

} // namespace Engine
