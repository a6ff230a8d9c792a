#pragma once

#include "base/settingsstore.h"
#include "cli/arguments.h"
#include "cli/console.h"
#include "data/datamodule.h"

#include <functional>
#include <memory>
#include <QList>
#include <QString>

namespace Tallymere::Cli {

// What a command has at hand while it runs.
struct CommandContext
{
    Console &console;
    ConsolePrompts &prompts;
    SettingsStore &settings;
    const Arguments &arguments; // words() without the command itself

    // Opens the database that the options or the user's settings name. The caller may set what the options leave
    // open.
    std::unique_ptr<TDataModuleTallymere> openData(DataModuleOptions options = {}) const;

    QString user() const; // who does it

    // The option --retry: the time that patiently() and the prompts go on for begins.
    void beginRetrying() const;
    // Does the step, and does it again while another user's lock is in the way and the time is not over.
    void patiently(const std::function<void()> &step) const;
};

struct Command
{
    QString name;
    QString words; // of the synopsis: "KIND FILE.csv"
    QString summary;
    QString details; // more for its own --help
    QList<OptionSpec> options; // besides the ones that all commands take
    bool namesOwnBooks = false; // by options of its own, in place of --data, --server and the settings
    bool paints = false; // needs the fonts of a QGuiApplication
    int fewestWords = 0;
    int mostWords = 0;
    std::function<void(CommandContext &)> run; // failures are exceptions
};

// Every command, in the order of --help.
const QList<Command> &commands();
const Command *findCommand(const QString &name);
const QList<OptionSpec> &commonOptions();
OptionSpec retryOption();
OptionSpec standbyOption(); // openData() heeds it

Command initCommand();
Command sampleCommand();
Command importCommand();
Command postCommand();
Command countCommand();
Command syncCommand();
Command totalsCommand();
Command historyCommand();
Command listCommand();
Command reportCommand();
Command printCommand();
Command costCommand();
Command buyCommand();
Command checkCommand();
Command backupCommand();
Command restoreCommand();
Command copyCommand();
Command manualCommand();

} // namespace Tallymere::Cli
