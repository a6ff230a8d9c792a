#pragma once

#include <QString>

namespace Tallymere::Cli::Terminal {

bool isErrorTerminal(); // standard error goes to a person's terminal
bool isOutputTerminal(); // standard output does
QString loginName(); // of the account that runs the program; empty when it has none
QString lastSystemError(); // why the last call of the operating system failed, in its words

} // namespace Tallymere::Cli::Terminal
