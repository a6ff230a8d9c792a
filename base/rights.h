#pragma once

#include <QString>

namespace Tallymere {

// What the user-rights check is asked.
struct Rights
{
    QString key;
    QString name;
};

// From a text such as "ItemTypes/Item Types"; without a slash it is both.
inline Rights rightsOf(const QString &text) { return {text.section(u'/', 0, 0), text.section(u'/', -1)}; }

} // namespace Tallymere
