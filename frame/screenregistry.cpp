#include "frame/screenregistry.h"

namespace Tallymere {

const ScreenKind *ScreenRegistry::find(const QString &name) const
{
    const auto found = m_kinds.constFind(name);
    return found == m_kinds.cend() ? nullptr : &*found;
}

} // namespace Tallymere
