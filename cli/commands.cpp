#include "cli/command.h"
#include "cli/named.h"
#include "cli/terminal.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("Commands", text); }

} // namespace

std::unique_ptr<TDataModuleTallymere> CommandContext::openData(DataModuleOptions options) const
{
    if (arguments.has(u"data"_s))
        options.dataFolder = QDir(arguments.value(u"data"_s)).absolutePath();
    options.server = arguments.value(u"server"_s);
    options.currentUser = arguments.value(u"user"_s, Terminal::loginName());
    return std::make_unique<TDataModuleTallymere>(settings, prompts, std::move(options));
}

const QList<OptionSpec> &commonOptions()
{
    static const QList<OptionSpec> options = {
        {u"data"_s, tr("FOLDER"), tr("the folder that holds the database")},
        {u"server"_s, tr("ADDRESS"), tr("the server that holds the database")},
        {u"user"_s, tr("NAME"), tr("the name others see as the owner of locks (default: the login name)")},
        {u"help"_s, {}, tr("shows this help")},
        {u"version"_s, {}, tr("shows the version")},
    };
    return options;
}

const QList<Command> &commands()
{
    static const QList<Command> all = {initCommand(), sampleCommand(), importCommand(),  postCommand(),
                                       syncCommand(), totalsCommand(), historyCommand(), listCommand()};
    return all;
}

const Command *findCommand(const QString &name) { return findNamed(commands(), name); }

} // namespace Tallymere
