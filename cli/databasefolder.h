#pragma once

#include "cli/command.h"

namespace Tallymere::Cli {

// The folder of the options or of the user's settings, where the database is one of files; empty when it is on a server, or
// nowhere yet.
QString folderOf(const CommandContext &context);
QString requireFolder(const CommandContext &context); // the same, made where it is missing

// Opens the database of the options or of the user's settings, making what is missing: the folder, the database,
// the host's tables with their one configuration row, the inventory tables.
std::unique_ptr<TDataModuleTallymere> openNewDatabase(const CommandContext &context, const QString &organization,
                                                      const QString &postalFormat);

} // namespace Tallymere::Cli
