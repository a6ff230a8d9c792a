#include "plgint/plgint.h"

namespace Tallymere {

bool IInterface::queryInterface(const Guid &, void **out)
{
    *out = nullptr;
    return false;
}

bool IPlugIn::queryInterface(const Guid &wanted, void **out)
{
    if (wanted != id)
        return IInterface::queryInterface(wanted, out);
    *out = this;
    addRef();
    return true;
}

bool IHostInterface::queryInterface(const Guid &wanted, void **out)
{
    if (wanted != id)
        return IInterface::queryInterface(wanted, out);
    *out = this;
    addRef();
    return true;
}

} // namespace Tallymere
