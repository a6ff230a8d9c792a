#pragma once

#include <algorithm>
#include <QString>
#include <QStringList>

namespace Tallymere {

// Lists of things that the command line knows by name: commands, kinds.

template <typename List> auto findNamed(const List &all, const QString &name)
{
    const auto found = std::find_if(all.begin(), all.end(), [&](const auto &one) { return one.name == name; });
    return found == all.end() ? nullptr : &*found;
}

template <typename List> QString namesOf(const List &all)
{
    QStringList names;
    for (const auto &one : all)
        names.append(one.name);
    return names.join(QLatin1StringView(", "));
}

} // namespace Tallymere
