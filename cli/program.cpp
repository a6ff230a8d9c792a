#include "cli/program.h"

#include "base/ruleerror.h"
#include "cli/command.h"
#include "cli/help.h"
#include "cli/texts.h"
#include "engine/values/error.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

// Commands that are known by name so that the user is told so.
const QStringList &comingCommands()
{
    static const QStringList names = {u"check"_s, u"backup"_s, u"restore"_s};
    return names;
}

// The first word that is no option, and no option's value, names the command.
QString commandName(const QStringList &words)
{
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString &word = words[i];
        if (!word.startsWith("--"_L1))
            return word;
        for (const OptionSpec &option : commonOptions()) {
            if (!option.value.isEmpty() && word == "--"_L1 + option.name)
                ++i;
        }
    }
    return {};
}

const Command &requireCommand(const QString &name)
{
    if (const Command *command = findCommand(name))
        return *command;
    if (comingCommands().contains(name))
        throw UsageError(Texts::tr("the command '%1' is not available yet").arg(name));
    throw UsageError(Texts::tr("unknown command '%1'").arg(name));
}

void requireWords(const Command &command, const Arguments &arguments)
{
    const qsizetype given = arguments.words().size() - 1;
    if (given < command.fewestWords)
        throw UsageError(Texts::tr("'%1' needs more: %2").arg(command.name, command.words));
    if (given > command.mostWords)
        throw UsageError(
            Texts::tr("'%1' does not know what to do with '%2'").arg(command.name, arguments.words().last()));
    if (arguments.has(u"data"_s) && arguments.has(u"server"_s))
        throw UsageError(Texts::tr("--data and --server exclude each other"));
    for (const QString &option : {u"data"_s, u"server"_s, u"user"_s}) {
        if (arguments.has(option) && arguments.value(option).isEmpty())
            throw UsageError(Texts::tr("option '--%1' needs a value").arg(option));
    }
}

void run(const QStringList &words, Console &console, SettingsStore &settings)
{
    const QString name = commandName(words);
    if (name.isEmpty()) {
        const Arguments arguments(words, commonOptions());
        if (arguments.has(u"version"_s))
            return console.print(versionText());
        if (arguments.has(u"help"_s))
            return console.print(helpText());
        throw UsageError(Texts::tr("which command?"));
    }
    const Command &command = requireCommand(name);
    const Arguments arguments(words, commonOptions() + command.options);
    if (arguments.has(u"version"_s))
        return console.print(versionText());
    if (arguments.has(u"help"_s))
        return console.print(helpText(command));
    requireWords(command, arguments);

    ConsolePrompts prompts(console);
    CommandContext context{console, prompts, settings, arguments};
    command.run(context);
}

// A lock held by another user, or a value that does not fit, is no failure of the engine.
bool isRefusal(Engine::ErrorCode code)
{
    switch (code) {
    case Engine::ErrorCode::KeyViolation:
    case Engine::ErrorCode::BadValue:
    case Engine::ErrorCode::RequiredField:
    case Engine::ErrorCode::BadExpression:
    case Engine::ErrorCode::RecordLocked:
    case Engine::ErrorCode::TableLocked:
    case Engine::ErrorCode::TableInUse:
    case Engine::ErrorCode::RecordGone:
    case Engine::ErrorCode::RecordChanged:
    case Engine::ErrorCode::Busy:
    case Engine::ErrorCode::MovedAway:
        return true;
    default:
        return false;
    }
}

// New books come into being only where the options and settings of all commands say.
bool mayLackBooks(const QStringList &words)
{
    const Command *command = findCommand(commandName(words));
    return command && !command->namesOwnBooks;
}

} // namespace

bool paints(const QStringList &words)
{
    const Command *command = findCommand(commandName(words));
    return command && command->paints;
}

ExitStatus runProgram(const QStringList &words, Console &console, SettingsStore &settings)
{
    try {
        run(words, console, settings);
        return ExitStatus::Done;
    } catch (const UsageError &error) {
        console.error(error.message());
        console.complain(Texts::tr("Try 'tallymere --help'."));
        return ExitStatus::WrongUsage;
    } catch (const RuleError &error) {
        console.error(error.message());
        return ExitStatus::Refused;
    } catch (const SilentAbort &) {
        return ExitStatus::Refused; // what there is to say has been said
    } catch (const Engine::EngineError &error) {
        console.error(error.text());
        if (error.code() == Engine::ErrorCode::NoDatabase && mayLackBooks(words))
            console.complain(Texts::tr("'tallymere init' makes a new database."));
        return isRefusal(error.code()) ? ExitStatus::Refused : ExitStatus::EngineFailed;
    } catch (const std::exception &error) {
        console.error(QString::fromUtf8(error.what()));
        return ExitStatus::EngineFailed;
    }
}

} // namespace Tallymere::Cli
