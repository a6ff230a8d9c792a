#include "cli/terminal.h"

#include <pwd.h>
#include <unistd.h>

namespace Tallymere::Cli::Terminal {

bool isErrorTerminal() { return isatty(STDERR_FILENO) == 1; }

bool isOutputTerminal() { return isatty(STDOUT_FILENO) == 1; }

QString loginName()
{
    const passwd *account = getpwuid(geteuid());
    return account ? QString::fromLocal8Bit(account->pw_name) : QString();
}

} // namespace Tallymere::Cli::Terminal
