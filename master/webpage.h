#pragma once

#include <QString>

namespace Tallymere {

// A web page as a vendor's record keeps it: what contains "http://" loses its first seven characters and all after
// the 29th.
inline QString webPageAsKept(const QString &typed) { return typed.contains(u"http://") ? typed.mid(7, 22) : typed; }

} // namespace Tallymere
