#pragma once

#include "cli/arguments.h"
#include "data/fiscalperiod.h"

#include <optional>
#include <QDate>

// Options that several commands take. What cannot be read throws UsageError.

namespace Engine {
class Database;
}

namespace Tallymere::Cli {

int positive(const Arguments &arguments, const QString &option, qint64 most); // 0 when it is not given
int keyOf(const Arguments &arguments, const QString &option); // of a record; 0 when it is not given
QDate dateOf(const Arguments &arguments, const QString &option); // null when it is not given
// --period and --year, which belong together.
std::optional<Period> periodOf(const Arguments &arguments);

int itemOf(Engine::Database &database, const QString &number); // its key. Throws RuleError when there is none

OptionSpec csvOption();
QList<OptionSpec> periodOptions(const QString &meaning);

} // namespace Tallymere::Cli
