#include "cli/command.h"
#include "cli/databasefolder.h"
#include "host/tables/hosttables.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("InitCommand", text); }

void runInit(CommandContext &context)
{
    const auto data = openNewDatabase(context, context.arguments.value(u"organization"_s, tr("My Organization")),
                                      context.arguments.value(u"postal-format"_s, u"USA"_s));
    context.console.print(
        tr("The database is ready in %1.").arg(data->databaseTallymere().connection().location()));
}

} // namespace

Command initCommand()
{
    Command command;
    command.name = u"init"_s;
    command.summary = tr("makes the folder, the database and its tables where they are missing");
    command.details =
        tr("Rows that are there stay as they are. The first currency follows the postal format: USA, CAN\n"
           "or UK; any other gives the currency of your locale.");
    command.options = {{u"organization"_s, tr("NAME"), tr("the organization's name in a new database")},
                       {u"postal-format"_s, tr("FMT"), tr("USA (the default), CAN, UK or another")}};
    command.run = runInit;
    return command;
}

} // namespace Tallymere
