#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: DataTexts::tr("...").
class DataTexts
{
    Q_DECLARE_TR_FUNCTIONS(Data)
};

} // namespace Tallymere
