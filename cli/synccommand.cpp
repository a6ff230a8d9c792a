#include "base/named.h"
#include "base/plural.h"
#include "cli/command.h"
#include "cli/texts.h"
#include "master/itemsync.h"
#include "master/locationsync.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

template <typename Sync> HostSyncResult synchronize(Engine::Database &database, Progress &progress)
{
    return Sync(database).run(progress);
}

struct SyncKind
{
    QString name;
    HostSyncResult (*run)(Engine::Database &, Progress &);
    QString oneAdded; // "%n location added, %1 renamed"
    QString manyAdded;
};

const QList<SyncKind> &kinds()
{
    static const QList<SyncKind> all = {
        {u"locations"_s, synchronize<LocationSync>, Texts::tr("%n location added, %1 renamed"),
         Texts::tr("%n locations added, %1 renamed")},
        {u"items"_s, synchronize<ItemSync>, Texts::tr("%n item added, %1 updated"),
         Texts::tr("%n items added, %1 updated")},
    };
    return all;
}

const SyncKind &requireKind(const QString &name)
{
    if (const SyncKind *kind = findNamed(kinds(), name))
        return *kind;
    throw UsageError(Texts::tr("'sync' knows no '%1', but: %2").arg(name, namesOf(kinds())));
}

void runSync(CommandContext &context)
{
    const SyncKind &kind = requireKind(context.arguments.words().at(1));
    context.beginRetrying();
    std::unique_ptr<TDataModuleTallymere> data;
    context.patiently([&] { data = context.openData(); });
    ConsoleProgress progress(context.console, Texts::tr("Synchronizing"));
    HostSyncResult result;
    context.patiently([&] { result = kind.run(data->databaseTallymere(), progress); });
    if (!result.notUpdated.isEmpty())
        context.prompts.warn(Texts::tr("What is there already has not been updated: %1").arg(result.notUpdated));
    context.console.print(plural(result.added, kind.oneAdded, kind.manyAdded).arg(result.updated));
}

} // namespace

Command syncCommand()
{
    Command command;
    command.name = u"sync"_s;
    command.words = u"locations|items"_s;
    command.fewestWords = command.mostWords = 1;
    command.summary = Texts::tr("brings the host's locations or items over");
    command.details =
        Texts::tr("Those that are there already take the host's names, prices and item types; new ones are added.\n"
                  "Nothing is deleted. While another user works on the same table nothing is done, with status 1\n"
                  "unless --retry says for how long to try.");
    command.options = {retryOption()};
    command.run = runSync;
    return command;
}

} // namespace Tallymere::Cli
