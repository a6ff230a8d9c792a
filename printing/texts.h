#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: PrintingTexts::tr("...").
class PrintingTexts
{
    Q_DECLARE_TR_FUNCTIONS(Printing)
};

} // namespace Tallymere
