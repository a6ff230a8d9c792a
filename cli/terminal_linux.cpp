#include "cli/terminal.h"

#include <cerrno>
#include <cstring>
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

QString lastSystemError() { return QString::fromLocal8Bit(std::strerror(errno)); }

} // namespace Tallymere::Cli::Terminal
