#include "base/plural.h"
#include "base/ruleerror.h"
#include "cli/command.h"
#include "cli/csvinput.h"
#include "cli/optionvalues.h"
#include "cli/texts.h"
#include "import/countfile.h"
#include "transactions/counting/stockcount.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

QString required(const Arguments &arguments, const QString &option)
{
    if (!arguments.has(option))
        throw UsageError(Texts::tr("'count' needs the option '--%1'").arg(option));
    return arguments.value(option);
}

void requireDate(QDate date, QDate today)
{
    if (!StockCount::isCountable(date, today))
        throw RuleError(Texts::tr("The date of a count must lie less than 365 days back"));
    if (date > StockCount::latestDate(today))
        throw RuleError(Texts::tr("The date of a count cannot be later than %1")
                            .arg(StockCount::latestDate(today).toString(Qt::ISODate)));
}

void requireLocation(const StockCount &count, qint64 location)
{
    const std::vector<CountLocation> locations = count.locations();
    if (std::none_of(locations.begin(), locations.end(),
                     [&](const CountLocation &one) { return one.id == location; }))
        throw RuleError(Texts::tr("There is no location %1").arg(location));
}

struct CountOrder
{
    qint64 location = 0;
    QDate date;
    ZeroCounts zeroCounts = ZeroCounts::Excluded;
    QString fileName;
    bool answerYes = false;
};

CountOrder orderOf(const Arguments &arguments)
{
    required(arguments, u"location"_s);
    required(arguments, u"date"_s);
    return {.location = arguments.number(u"location"_s, 0),
            .date = dateOf(arguments, u"date"_s),
            .zeroCounts = arguments.has(u"include-zero"_s) ? ZeroCounts::Included : ZeroCounts::Excluded,
            .fileName = required(arguments, u"file"_s),
            .answerYes = arguments.has(u"yes"_s)};
}

std::optional<CalculatedUsage> calculate(CommandContext &context, TDataModuleTallymere &data,
                                         const CountOrder &order, QIODevice &file)
{
    StockCount count(data.databaseTallymere(), context.prompts);
    requireLocation(count, order.location);
    requireDate(order.date, data.today());
    if (!count.open(static_cast<int>(order.location), order.zeroCounts))
        throw RuleError(Texts::tr("Nothing was counted."));
    count.setDate(order.date);
    file.seek(0);
    ImportErrors errors;
    takeCountFile(file, count, order.answerYes, errors);
    if (!errors.isEmpty()) {
        complainOfRows(context.console, order.fileName, errors);
        throw RuleError(Texts::tr("Nothing was counted."));
    }
    return count.calculate().usage;
}

void runCount(CommandContext &context)
{
    const CountOrder order = orderOf(context.arguments);
    const std::unique_ptr<QIODevice> file = openInput(order.fileName);
    context.beginRetrying();
    std::unique_ptr<TDataModuleTallymere> data;
    context.patiently([&] { data = context.openData(); });
    std::optional<CalculatedUsage> usage;
    context.patiently([&] { usage = calculate(context, *data, order, *file); });
    context.console.print(usage ? plural(usage->lines, Texts::tr("usage %1 written, %n line"),
                                         Texts::tr("usage %1 written, %n lines"))
                                      .arg(usage->number)
                                : Texts::tr("no usage to be written"));
}

} // namespace

Command countCommand()
{
    Command command;
    command.name = u"count"_s;
    command.summary = Texts::tr("turns a count of the stock at a location into a usage document");
    command.details = Texts::tr(
        "COUNT.csv holds ItemNo,Quantity. Items that it leaves out keep their recorded quantity. What has been\n"
        "counted above the record becomes a negative usage, but only where something else has been used.\n"
        "While documents of the location wait to be posted nothing is counted.");
    command.options = {
        {u"location"_s, Texts::tr("ID"), Texts::tr("where it was counted: WarehouseID of the locations")},
        {u"date"_s, Texts::tr("YYYY-MM-DD"), Texts::tr("when")},
        {u"file"_s, Texts::tr("COUNT.csv"), Texts::tr("what was counted")},
        {u"include-zero"_s, {}, Texts::tr("items without any balance may be in the file as well")},
        {u"yes"_s, {}, Texts::tr("takes large quantities that a screen would ask about")},
        retryOption()};
    command.run = runCount;
    return command;
}

} // namespace Tallymere::Cli
