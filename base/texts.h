#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: BaseTexts::tr("...").
class BaseTexts
{
    Q_DECLARE_TR_FUNCTIONS(Base)
};

} // namespace Tallymere
