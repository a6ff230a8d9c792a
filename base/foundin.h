#pragma once

#include <algorithm>
#include <QString>
#include <stdexcept>

namespace Tallymere {

// The element that a program knows to be there. Whoever misspelt its name is told, in a release build as well.
template <typename Range, typename Is> auto &foundIn(Range &range, const QString &name, Is is)
{
    const auto found = std::find_if(range.begin(), range.end(), is);
    if (found == range.end())
        throw std::logic_error("There is no " + name.toStdString());
    return *found;
}

} // namespace Tallymere
