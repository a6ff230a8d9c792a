#include "base/plural.h"
#include "base/ruleerror.h"
#include "care/bookcheck.h"
#include "cli/command.h"
#include "cli/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

void runCheck(CommandContext &context)
{
    const auto data = context.openData();
    ConsoleProgress progress(context.console, Texts::tr("Checking"));
    const int found =
        checkBooks(data->databaseTallymere(), progress, [&context](const BookCheck &check, const Finding &finding) {
            context.console.print(u"%1: %2"_s.arg(check.title, finding.text()));
        });
    if (found > 0)
        throw RuleError(plural(found, Texts::tr("%n finding"), Texts::tr("%n findings")));
    context.console.print(Texts::tr("Nothing is wrong."));
}

} // namespace

Command checkCommand()
{
    Command command;
    command.name = u"check"_s;
    command.summary = Texts::tr("looks whether the books are sound, and prints every finding");
    command.details = Texts::tr(
        "The file and its tables, documents against their lines and their history, balances against the\n"
        "history, counters, numbers given twice, what names something that is gone, values that no screen\n"
        "lets in. Each finding says what is wrong and where, what it does to the figures and what mends it.");
    command.run = runCheck;
    return command;
}

} // namespace Tallymere::Cli
