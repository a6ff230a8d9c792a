#pragma once

#include <QCoreApplication>

namespace Tallymere::Cli {

// The context in which this room's texts are found: Texts::tr("...").
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

} // namespace Tallymere::Cli
