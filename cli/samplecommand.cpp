#include "base/ruleerror.h"
#include "cli/command.h"
#include "cli/databasefolder.h"
#include "cli/texts.h"
#include "data/layouts.h"
#include "engine/records/query.h"
#include "host/sample/largekitchen.h"
#include "host/sample/samplefiles.h"
#include "transactions/documentkinds.h"
#include "transactions/documentposting.h"

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

void requireEmpty(Engine::Database &database)
{
    QStringList tables = {u"Item"_s, u"ItemType"_s, u"Vendor"_s, u"VContact"_s};
    for (const DocumentKind *kind : DocumentKinds::all())
        tables.append(kind->headerTable);
    tables += {u"IHist"_s, u"IBalance"_s, u"Tax"_s};
    for (const QString &table : tables) {
        if (Engine::singleValue(database, u"SELECT count(*) FROM "_s + table).toInt64() > 0)
            throw RuleError(
                Texts::tr("The sample kitchen goes into a new database only: table '%1' holds rows already.")
                    .arg(Layouts::titleOf(table)));
    }
}

// Costs of the sample are in US dollars, and its currencies have rates to them.
void requireDollars(Engine::Database &database)
{
    const QString home =
        Engine::singleValue(database, u"SELECT CurrencyName FROM Currency ORDER BY CurrencyID"_s).toText();
    if (home != "US $"_L1)
        throw RuleError(
            Texts::tr("The sample kitchen counts in US $, but the home currency of this database is %1. "
                      "Make a database with the postal format USA.")
                .arg(home));
}

// All or nothing, here and below: half a kitchen could not be filled up later.
void fillSmall(TDataModuleTallymere &data, Prompts &prompts, Progress &progress)
{
    Engine::Transaction transaction(data.databaseTallymere().connection());
    requireEmpty(data.databaseTallymere());
    bringInSampleMasters(data, progress);
    for (const DocumentKind *kind : DocumentKinds::all()) {
        bringInSampleDocuments(data, kind->name, SampleDocuments::Posted, progress);
        DocumentPosting(data.databaseTallymere(), *kind).run(prompts, progress);
        bringInSampleDocuments(data, kind->name, SampleDocuments::Unposted, progress);
    }
    transaction.commit();
}

void fillLarge(TDataModuleTallymere &data, quint64 seed, Progress &progress)
{
    Engine::Transaction transaction(data.databaseTallymere().connection());
    requireEmpty(data.databaseTallymere());
    bringInSampleMasters(data, progress);
    LargeKitchen(data.databaseTallymere(), seed, {}).fill(progress);
    transaction.commit();
}

void runSample(CommandContext &context)
{
    const bool large = isLarge(context.arguments.value(u"size"_s, u"small"_s));
    const qint64 seed = context.arguments.number(u"seed"_s, usualSeed);
    const auto opened = openNewDatabase(context, Texts::tr("Lakeside Meals"), u"USA"_s);
    TDataModuleTallymere &data = *opened;
    requireDollars(data.databaseTallymere());

    ConsoleProgress progress(context.console, Texts::tr("Filling"));
    if (large)
        fillLarge(data, static_cast<quint64>(seed), progress);
    else
        fillSmall(data, context.prompts, progress);
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
