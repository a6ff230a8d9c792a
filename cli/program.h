#pragma once

#include "base/settingsstore.h"
#include "cli/console.h"

#include <QStringList>

namespace Tallymere::Cli {

enum class ExitStatus {
    Done = 0,
    Refused = 1, // by a rule, by bad input or by a lock
    WrongUsage = 2,
    EngineFailed = 3, // the database could not be opened, or failed
};

// Whether the command of these words needs a QGuiApplication.
bool paints(const QStringList &words);

// Runs the command line (without the program's name) and reports failures on standard error.
ExitStatus runProgram(const QStringList &words, Console &console, SettingsStore &settings);

} // namespace Tallymere::Cli
