#include "base/csvwriter.h"
#include "base/ruleerror.h"
#include "cli/command.h"
#include "cli/optionvalues.h"
#include "cli/texts.h"
#include "data/fields.h"
#include "engine/records/tablereader.h"
#include "insight/costtrail.h"
#include "insight/whattobuy.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

void writeRecord(CsvWriter &writer, const QStringList &fields)
{
    for (const QString &field : fields)
        writer.field(field);
    writer.endRecord();
}

QString number(double value) { return Engine::Value(value).toText(); }
QString number(const std::optional<Engine::Money> &amount)
{
    return amount ? number(amount->toDouble()) : QString();
}

void runCost(CommandContext &context)
{
    const auto data = context.openData();
    Engine::Database &database = data->databaseTallymere();
    const CostTrail trail = costTrail(database, itemOf(database, context.arguments.words().at(1)));

    CsvWriter writer(context.console.longOutput());
    writeRecord(writer,
                {Fields::TransDate, Fields::TransDescription, Fields::WarehouseName, Fields::Quantity,
                 Fields::UnitCost, u"OnHandBefore"_s, u"AverageBefore"_s, u"OnHandAfter"_s, u"AverageAfter"_s});
    for (const CostStep &step : trail.steps)
        writeRecord(writer,
                    {Engine::Value(step.date).toText(), step.description, step.location, number(step.received),
                     number(step.unitCost), number(step.onHandBefore), number(step.averageBefore),
                     number(step.onHandAfter), number(step.averageAfter)});
    writeRecord(writer, {{}, trail.verdict(), {}, {}, {}, {}, {}, {}, number(trail.stored)});
    writer.flush();
}

void runBuy(CommandContext &context)
{
    BuyingPlan plan;
    plan.location = keyOf(context.arguments, u"location"_s);
    if (const int weeks = positive(context.arguments, u"weeks"_s, mostWeeks))
        plan.weeks = weeks;
    if (const int cover = positive(context.arguments, u"cover"_s, mostWeeks))
        plan.cover = cover;
    const auto data = context.openData();
    plan.today = data->today();

    CsvWriter writer(context.console.longOutput());
    writeRecord(writer,
                {Fields::VendorNo, Fields::VendorName, Fields::ItemNo, Fields::ItemDescription, u"UsePerWeek"_s,
                 Fields::QtyOnHand, u"Unposted"_s, u"DaysLeft"_s, u"Proposed"_s, u"LastCost"_s});
    for (const ItemToBuy &item : whatToBuy(data->databaseTallymere(), plan))
        writeRecord(writer,
                    {item.vendorNo, item.vendorName, item.itemNo, item.description, number(item.usePerWeek),
                     number(item.onHand), number(item.unposted), number(item.daysLeft), number(item.proposed),
                     number(item.lastCost)});
    writer.flush();
}

} // namespace

Command costCommand()
{
    Command command;
    command.name = u"cost"_s;
    command.words = u"ITEMNO"_s;
    command.fewestWords = command.mostWords = 1;
    command.summary = Texts::tr("why an item costs what it costs, as CSV: its posted receipts");
    command.details = Texts::tr(
        "Each receipt in the order of posting, with quantity and average cost before and after it. The last line\n"
        "bears the average cost that stands with the item, and says when that was set by hand. Figures that\n"
        "rest on a cost set by hand are left empty.");
    command.options = {csvOption()};
    command.run = runCost;
    return command;
}

Command buyCommand()
{
    Command command;
    command.name = u"buy"_s;
    command.summary = Texts::tr("what to buy, by the vendor of the last receipt, as CSV");
    command.details = Texts::tr(
        "Items that have been used, with use per week, what is on hand, what waits to be posted, how many days\n"
        "both last, and the quantity that makes them last as long as they shall.");
    command.options = {{u"location"_s, Texts::tr("ID"), Texts::tr("for one location only")},
                       {u"weeks"_s, Texts::tr("N"), Texts::tr("use of the last N weeks (default 8)")},
                       {u"cover"_s, Texts::tr("N"), Texts::tr("the stock is to last N weeks (default 2)")},
                       csvOption()};
    command.run = runBuy;
    return command;
}

} // namespace Tallymere::Cli
