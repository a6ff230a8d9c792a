#pragma once

#include "cli/command.h"

namespace Tallymere::Cli {

QString versionText();
QString helpText(); // of the program
QString helpText(const Command &command);

} // namespace Tallymere::Cli
