#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: SampleTexts::tr("...").
class SampleTexts
{
    Q_DECLARE_TR_FUNCTIONS(Sample)
};

} // namespace Tallymere
