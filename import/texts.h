#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: ImportTexts::tr("...").
class ImportTexts
{
    Q_DECLARE_TR_FUNCTIONS(Import)
};

} // namespace Tallymere
