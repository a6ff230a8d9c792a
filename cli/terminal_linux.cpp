#include "cli/terminal.h"

#include <unistd.h>

namespace Tallymere::Cli::Terminal {

bool isErrorTerminal() { return isatty(STDERR_FILENO) == 1; }

bool isOutputTerminal() { return isatty(STDOUT_FILENO) == 1; }

} // namespace Tallymere::Cli::Terminal
