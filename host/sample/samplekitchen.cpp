#include "host/sample/samplekitchen.h"

#include "base/ruleerror.h"
#include "data/layouts.h"
#include "engine/records/query.h"
#include "host/sample/samplefiles.h"
#include "host/sample/texts.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/posting/documentposting.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void requireEmpty(Engine::Database &database)
{
    QStringList tables = {u"Item"_s, u"ItemType"_s, u"Vendor"_s, u"VContact"_s};
    for (const DocumentKind *kind : DocumentKinds::all())
        tables.append(kind->headerTable);
    tables += {u"IHist"_s, u"IBalance"_s, u"Tax"_s};
    for (const QString &table : tables) {
        if (Engine::singleValue(database, u"SELECT count(*) FROM "_s + table).toInt64() > 0)
            throw RuleError(
                SampleTexts::tr("The sample kitchen goes into a new database only: table '%1' holds rows already.")
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
            SampleTexts::tr("The sample kitchen counts in US $, but the home currency of this database is %1. "
                            "Make a database with the postal format USA.")
                .arg(home));
}

} // namespace

void fillSmallKitchen(TDataModuleTallymere &data, Prompts &prompts, Progress &progress)
{
    requireDollars(data.databaseTallymere());
    Engine::Transaction transaction(data.databaseTallymere().connection());
    requireEmpty(data.databaseTallymere());
    bringInSampleMasters(data, progress);
    QStringList kinds;
    for (const DocumentKind *kind : DocumentKinds::all())
        kinds.append(kind->name);
    // As they came about, so that the average costs are those of the stock there was.
    for (const int period : samplePeriods(kinds)) {
        for (const DocumentKind *kind : DocumentKinds::all()) {
            bringInSampleDocuments(data, kind->name, period, progress);
            DocumentPosting(data.databaseTallymere(), *kind).run(prompts, progress);
        }
    }
    for (const QString &kind : kinds)
        bringInOpenDocuments(data, kind, progress);
    transaction.commit();
}

void fillLargeKitchen(TDataModuleTallymere &data, quint64 seed, Progress &progress, LargeKitchen::Size size)
{
    requireDollars(data.databaseTallymere());
    Engine::Transaction transaction(data.databaseTallymere().connection());
    requireEmpty(data.databaseTallymere());
    bringInSampleMasters(data, progress);
    LargeKitchen(data.databaseTallymere(), seed, size).fill(progress);
    transaction.commit();
}

} // namespace Tallymere
