#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: InsightTexts::tr("...").
class InsightTexts
{
    Q_DECLARE_TR_FUNCTIONS(Insight)
};

} // namespace Tallymere
