#include "base/named.h"
#include "base/origintext.h"
#include "cli/command.h"
#include "cli/databasefolder.h"
#include "cli/texts.h"
#include "engine/store/attempts.h"
#include "engine/store/platform.h"
#include "engine/values/error.h"

#include <algorithm>
#include <chrono>
#include <QDir>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

// The main database would say so itself, but as a host does that ends then.
void requirePlace(const CommandContext &context)
{
    const bool isServer =
        context.arguments.has(u"server"_s) || context.settings.value(Settings::Mode) == Engine::SessionType::Remote;
    if (!isServer && folderOf(context).isEmpty())
        Engine::raise(Engine::ErrorCode::CannotOpen,
                      Texts::tr("No database has been chosen. Name it with --data FOLDER or --server ADDRESS."));
}

} // namespace

QString CommandContext::user() const { return arguments.value(u"user"_s, Engine::systemUserName()); }

std::unique_ptr<TDataModuleTallymere> CommandContext::openData(DataModuleOptions options) const
{
    if (arguments.has(u"data"_s))
        options.dataFolder = QDir(arguments.value(u"data"_s)).absolutePath();
    options.server = arguments.value(u"server"_s);
    options.currentUser = user();
    options.readsFromStandby = arguments.has(u"standby"_s);
    requirePlace(*this);
    auto data = std::make_unique<TDataModuleTallymere>(settings, prompts, std::move(options));
    if (arguments.has(u"standby"_s) && data->sessionTallymere().type != Engine::SessionType::Remote)
        throw UsageError(Texts::tr("--standby belongs to a database on servers"));
    data->sessionTallymere().readFrom = [&console = console](const Engine::ReadOrigin &origin) {
        console.error(originText(origin));
    };
    return data;
}

void CommandContext::beginRetrying() const
{
    constexpr qint64 longest = qint64(10) * 365 * 24 * 3600; // more seconds would not fit into milliseconds
    prompts.retryFor(std::chrono::seconds(std::min(arguments.number(u"retry"_s, 0), longest)));
}

void CommandContext::patiently(const std::function<void()> &step) const
{
    Engine::tryWhileHeld(step, [this](const Engine::EngineError &) { return prompts.mayTryAgain(); });
}

OptionSpec retryOption()
{
    return {u"retry"_s, Texts::tr("SECONDS"), Texts::tr("keeps trying while another user holds a table")};
}

OptionSpec standbyOption()
{
    return {u"standby"_s, {}, Texts::tr("reads from a standby server that has what was saved, where there is one")};
}

const QList<OptionSpec> &commonOptions()
{
    static const QList<OptionSpec> options = {
        {u"data"_s, Texts::tr("FOLDER"), Texts::tr("the folder that holds the database")},
        {u"server"_s, Texts::tr("ADDRESS"), Texts::tr("the server that holds the database")},
        {u"user"_s, Texts::tr("NAME"),
         Texts::tr("the name others see as the owner of locks (default: the login name)")},
        {u"help"_s, {}, Texts::tr("shows this help")},
        {u"version"_s, {}, Texts::tr("shows the version")},
    };
    return options;
}

const QList<Command> &commands()
{
    static const QList<Command> all = {
        initCommand(),   sampleCommand(),  importCommand(), postCommand(),    countCommand(), syncCommand(),
        totalsCommand(), historyCommand(), listCommand(),   reportCommand(),  printCommand(), costCommand(),
        buyCommand(),    checkCommand(),   backupCommand(), restoreCommand(), copyCommand(),  manualCommand()};
    return all;
}

const Command *findCommand(const QString &name) { return findNamed(commands(), name); }

} // namespace Tallymere::Cli
