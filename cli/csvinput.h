#pragma once

#include "import/importkind.h"

#include <memory>
#include <QIODevice>

namespace Tallymere::Cli {

class Console;

// A file that a command brings in, to be read as often as it is tried: what can be read only once is kept. Throws RuleError.
std::unique_ptr<QIODevice> openInput(const QString &fileName);

// Each as FILE:LINE: message, the first 100 and then a count.
void complainOfRows(Console &console, const QString &fileName, const ImportErrors &errors);

} // namespace Tallymere::Cli
