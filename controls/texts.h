#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: ControlsTexts::tr("...").
class ControlsTexts
{
    Q_DECLARE_TR_FUNCTIONS(Controls)
};

} // namespace Tallymere
