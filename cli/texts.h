#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: CliTexts::tr("...").
class CliTexts
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

} // namespace Tallymere
