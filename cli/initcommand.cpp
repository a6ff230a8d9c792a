#include "cli/command.h"
#include "cli/databasefolder.h"
#include "cli/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

void runInit(CommandContext &context)
{
    const auto data =
        openNewDatabase(context, context.arguments.value(u"organization"_s, Texts::tr("My Organization")),
                        context.arguments.value(u"postal-format"_s, u"USA"_s));
    context.console.print(
        Texts::tr("The database is ready in %1.").arg(data->databaseTallymere().connection().location()));
}

} // namespace

Command initCommand()
{
    Command command;
    command.name = u"init"_s;
    command.summary = Texts::tr("makes the folder, the database and its tables where they are missing");
    command.details =
        Texts::tr("Rows that are there stay as they are. The first currency follows the postal format: USA, CAN\n"
                  "or UK; any other gives the currency of your locale.");
    command.options = {
        {u"organization"_s, Texts::tr("NAME"), Texts::tr("the organization's name in a new database")},
        {u"postal-format"_s, Texts::tr("FMT"), Texts::tr("USA (the default), CAN, UK or another")}};
    command.run = runInit;
    return command;
}

} // namespace Tallymere::Cli
