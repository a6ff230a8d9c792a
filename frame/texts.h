#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: FrameTexts::tr("...").
class FrameTexts
{
    Q_DECLARE_TR_FUNCTIONS(Frame)
};

} // namespace Tallymere
