#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: ReportsTexts::tr("...").
class ReportsTexts
{
    Q_DECLARE_TR_FUNCTIONS(Reports)
};

} // namespace Tallymere
