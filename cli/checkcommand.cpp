#include "base/plural.h"
#include "base/ruleerror.h"
#include "care/folderload.h"
#include "care/repair.h"
#include "cli/command.h"
#include "cli/texts.h"
#include "engine/store/platform.h"
#include "engine/store/session.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

// Beside the database in a folder, among the user's own files for one on a server.
QString backupName(Engine::Database &database)
{
    const QString folder = database.session().type == Engine::SessionType::Local
        ? database.directory
        : QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    Engine::makeFolder(folder);
    return QDir(folder).filePath(
        u"before-repair-%1.sqlite"_s.arg(database.session().now().toString(u"yyyy-MM-dd-hhmmss"_s)));
}

void tellLeft(CommandContext &context, int left)
{
    if (left > 0)
        throw RuleError(plural(left, Texts::tr("%n finding"), Texts::tr("%n findings")));
    context.console.print(Texts::tr("Nothing is wrong."));
}

void tellLoad(CommandContext &context, Engine::Database &database)
{
    const std::optional<FolderLoad> load = FolderLoad::of(database);
    if (load && load->isNearItsEnd())
        context.console.print(load->text());
}

void runRepair(CommandContext &context, Engine::Database &database, const QString &user, const TellFinding &tell)
{
    const QString backup = backupName(database);
    ConsoleProgress progress(context.console, Texts::tr("Checking"));
    const RepairResult result = repairBooks(database, backup, user, progress, tell);
    if (result.mended > 0)
        context.console.print(plural(result.mended,
                                     Texts::tr("%n finding mended; before it the books stood as in %1."),
                                     Texts::tr("%n findings mended; before it the books stood as in %1."))
                                  .arg(backup));
    else if (result.left > 0)
        context.console.print(
            Texts::tr("Nothing of this can be mended by a repair, and nothing has been changed."));
    tellLeft(context, result.left);
}

void runCheck(CommandContext &context)
{
    if (context.arguments.has(u"repair"_s) && context.arguments.has(u"standby"_s))
        throw UsageError(Texts::tr("--repair and --standby exclude each other"));
    const auto data = context.openData();
    const auto tell = [&context](const BookCheck &check, const BookFinding &finding) {
        context.console.print(u"%1: %2"_s.arg(check.title, finding.text()));
    };
    if (context.arguments.has(u"repair"_s))
        return runRepair(context, data->databaseTallymere(), data->currentUser(), tell);
    ConsoleProgress progress(context.console, Texts::tr("Checking"));
    const int found = checkBooks(data->databaseTallymere(), progress, tell, Engine::ReadFrom::Standby);
    tellLoad(context, data->databaseTallymere());
    tellLeft(context, found);
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
        "lets in. Each finding says what is wrong and where, what it does to the figures and what mends it.\n"
        "A repair mends what has one right answer, and leaves a note of each in the host's history.");
    command.options = {
        {u"repair"_s, {}, Texts::tr("mends what can be mended without guessing, after a backup that it names")},
        standbyOption()};
    command.run = runCheck;
    return command;
}

} // namespace Tallymere::Cli
