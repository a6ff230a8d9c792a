#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: PhoneCountTexts::tr("...").
class PhoneCountTexts
{
    Q_DECLARE_TR_FUNCTIONS(PhoneCount)
};

} // namespace Tallymere
