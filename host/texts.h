#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: HostTexts::tr("...").
class HostTexts
{
    Q_DECLARE_TR_FUNCTIONS(Host)
};

} // namespace Tallymere
