#include "care/backup.h"
#include "cli/command.h"
#include "cli/databasefolder.h"
#include "cli/texts.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

void runBackup(CommandContext &context)
{
    const QString file = context.arguments.words().at(1);
    const auto data = context.openData();
    ConsoleProgress progress(context.console, Texts::tr("Backing up"));
    backUp(data->databaseTallymere(), file, progress);
    context.console.print(
        Texts::tr("%1 holds a backup of %2, which has been verified.")
            .arg(QFileInfo(file).absoluteFilePath(), data->databaseTallymere().connection().location()));
}

QStringList restored(CommandContext &context, const QString &file, Progress &progress)
{
    const QString set = folderOf(context);
    auto leftEmpty = qScopeGuard([set, isNew = !set.isEmpty() && !QFileInfo::exists(set)] {
        if (isNew)
            QDir().rmdir(set); // refused where something is in it
    });
    if (const QString folder = requireFolder(context); !folder.isEmpty()) {
        const QStringList older = restoreIntoFolder(file, folder, context.user(), progress);
        leftEmpty.dismiss();
        return older;
    }
    QStringList older;
    DataModuleOptions options;
    options.createDatabase = true;
    options.prepareHost = [&](Engine::Database &database) {
        older = restoreInto(database, file, context.user(), progress);
    };
    context.openData(std::move(options));
    return older;
}

void runRestore(CommandContext &context)
{
    QStringList older;
    {
        ConsoleProgress progress(context.console, Texts::tr("Restoring"));
        older = restored(context, context.arguments.words().at(1), progress);
    }
    const auto data = context.openData();
    if (!older.isEmpty())
        context.console.print(
            Texts::tr("The backup is of an older release. Brought up to date: %1.").arg(older.join(u", ")));
    context.console.print(
        Texts::tr("The backup has been restored into %1.").arg(data->databaseTallymere().connection().location()));
}

} // namespace

Command backupCommand()
{
    Command command;
    command.name = u"backup"_s;
    command.words = u"FILE"_s;
    command.fewestWords = command.mostWords = 1;
    command.summary = Texts::tr("a copy of the whole database in one new file, while others work");
    command.details =
        Texts::tr("All tables as they stand at one moment, the host's among them, verified after writing.\n"
                  "Nothing that exists is written over. The file is a SQLite database, of a server as well.");
    command.run = runBackup;
    return command;
}

Command restoreCommand()
{
    Command command;
    command.name = u"restore"_s;
    command.words = u"FILE"_s;
    command.fewestWords = command.mostWords = 1;
    command.summary = Texts::tr("a backup back, into a folder or a server that holds no database");
    command.details =
        Texts::tr("The backup is verified before it is used and stays as it is. What an older release has made is\n"
                  "brought up to date; what a newer one has made is refused.");
    command.run = runRestore;
    return command;
}

} // namespace Tallymere::Cli
