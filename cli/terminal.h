#pragma once

#include <QString>

namespace Tallymere::Cli::Terminal {

bool isErrorTerminal(); // standard error goes to a person's terminal
bool isOutputTerminal(); // standard output does
QString loginName(); // of the account that runs the program; empty when it has none

} // namespace Tallymere::Cli::Terminal
