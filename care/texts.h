#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: CareTexts::tr("...").
class CareTexts
{
    Q_DECLARE_TR_FUNCTIONS(Care)
};

} // namespace Tallymere
