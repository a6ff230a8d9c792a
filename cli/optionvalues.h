#pragma once

#include "base/csvwriter.h"
#include "cli/arguments.h"
#include "cli/command.h"
#include "data/fiscalperiod.h"

#include <functional>
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

QList<OptionSpec> csvOptions(); // with --xlsx
OptionSpec xlsxOption();
// Has a table written where the options want it: as CSV to standard output, or as a sheet to the file of --xlsx.
void writeTable(CommandContext &context, const QString &title, const std::function<void(RowWriter &)> &write);
OptionSpec defuseOption();
CsvTexts csvTexts(const Arguments &arguments);
QList<OptionSpec> periodOptions(const QString &meaning);

} // namespace Tallymere::Cli
