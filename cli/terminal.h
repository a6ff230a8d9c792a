#pragma once

namespace Tallymere::Cli::Terminal {

bool isErrorTerminal(); // standard error goes to a person's terminal
bool isOutputTerminal(); // standard output does

} // namespace Tallymere::Cli::Terminal
