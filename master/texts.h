#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: MasterTexts::tr("...").
class MasterTexts
{
    Q_DECLARE_TR_FUNCTIONS(Master)
};

} // namespace Tallymere
