#include "cli/command.h"
#include "cli/databasefolder.h"
#include "cli/texts.h"
#include "engine/records/query.h"
#include "host/sample/samplekitchen.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

constexpr qint64 usualSeed = 1;

bool isLarge(const QString &size)
{
    if (size != "small"_L1 && size != "large"_L1)
        throw UsageError(Texts::tr("option '--size' takes small or large, not '%1'").arg(size));
    return size == "large"_L1;
}

void runSample(CommandContext &context)
{
    const bool large = isLarge(context.arguments.value(u"size"_s, u"small"_s));
    const qint64 seed = context.arguments.number(u"seed"_s, usualSeed);
    const auto opened = openNewDatabase(context, Texts::tr("Lakeside Meals"), u"USA"_s);
    TDataModuleTallymere &data = *opened;

    ConsoleProgress progress(context.console, Texts::tr("Filling"));
    if (large)
        fillLargeKitchen(data, static_cast<quint64>(seed), progress);
    else
        fillSmallKitchen(data, context.prompts, progress);
    const auto rows = Engine::singleValue(data.databaseTallymere(), u"SELECT count(*) FROM IHist"_s);
    const auto items = Engine::singleValue(data.databaseTallymere(), u"SELECT count(*) FROM Item"_s);
    context.console.print(
        Texts::tr("The sample kitchen is ready: %1 items, %2 history rows.").arg(items.toText(), rows.toText()));
}

} // namespace

Command sampleCommand()
{
    Command command;
    command.name = u"sample"_s;
    command.summary = Texts::tr("fills a new database with a sample kitchen");
    command.details = Texts::tr(
        "What is missing is made as by 'init'. The small kitchen holds a year of documents of all kinds, posted\n"
        "but for the last days'. The large one holds 5,000 items, 10 locations and 1,000,000 history rows of\n"
        "three years; the same seed gives the same rows.");
    command.options = {{u"size"_s, u"small|large"_s, Texts::tr("small (the default) or large")},
                       {u"seed"_s, u"N"_s, Texts::tr("what chance of the large kitchen starts from (default 1)")}};
    command.run = runSample;
    return command;
}

} // namespace Tallymere::Cli
