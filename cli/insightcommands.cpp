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

void writeTitles(RowWriter &writer, const QStringList &titles)
{
    for (const QString &title : titles)
        writer.title(title);
    writer.endRecord();
}

void writeRecord(RowWriter &writer, const QList<Engine::Value> &fields)
{
    for (const Engine::Value &field : fields)
        writer.field(field);
    writer.endRecord();
}

Engine::Value number(const std::optional<Engine::Money> &amount)
{
    return amount ? Engine::Value(*amount) : Engine::Value();
}

void runCost(CommandContext &context)
{
    const auto data = context.openData();
    Engine::Database &database = data->databaseTallymere();
    const CostTrail trail = costTrail(database, itemOf(database, context.arguments.words().at(1)));

    writeTable(context, context.arguments.words().constLast(), [&](RowWriter &writer) {
        writeTitles(writer,
                    {Fields::TransDate, Fields::TransDescription, Fields::WarehouseName, Fields::Quantity,
                     Fields::UnitCost, TrailFields::OnHandBefore, TrailFields::AverageBefore,
                     TrailFields::OnHandAfter, TrailFields::AverageAfter});
        for (const CostStep &step : trail.steps)
            writeRecord(writer,
                        {step.date, step.description, step.location, step.received, number(step.unitCost),
                         step.onHandBefore, number(step.averageBefore), step.onHandAfter,
                         number(step.averageAfter)});
        writeRecord(writer, {{}, trail.verdict(), {}, {}, {}, {}, {}, {}, number(trail.stored)});
        writer.flush();
    });
}

void runBuy(CommandContext &context)
{
    BuyingPlan plan;
    plan.location = keyOf(context.arguments, u"location"_s);
    if (const int weeks = positive(context.arguments, u"weeks"_s, mostWeeks))
        plan.weeks = weeks;
    if (const int cover = positive(context.arguments, u"cover"_s, mostWeeks))
        plan.cover = cover;
    plan.alsoInStock = context.arguments.has(u"all"_s);
    const auto data = context.openData();
    plan.today = data->today();

    writeTable(context, context.arguments.words().constLast(), [&](RowWriter &writer) {
        writeTitles(writer,
                    {Fields::VendorNo, Fields::VendorName, Fields::ItemNo, Fields::ItemDescription,
                     BuyingFields::UsePerWeek, Fields::QtyOnHand, BuyingFields::Unposted, BuyingFields::DaysLeft,
                     BuyingFields::Proposed, BuyingFields::LastCost});
        for (const ItemToBuy &item : whatToBuy(data->databaseTallymere(), plan))
            writeRecord(writer,
                        {item.vendorNo, item.vendorName, item.itemNo, item.description, item.usePerWeek,
                         item.onHand, item.unposted, item.daysLeft, item.proposed, number(item.lastCost)});
        writer.flush();
    });
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
    command.options = csvOptions();
    command.run = runCost;
    return command;
}

Command buyCommand()
{
    Command command;
    command.name = u"buy"_s;
    command.summary = Texts::tr("what to buy, by the vendor of the last receipt, as CSV");
    command.details =
        Texts::tr("Items that have been used and do not last as long as they shall, with use per week, what is on "
                  "hand, what\n"
                  "waits to be posted, how many days both last, and the quantity that makes them last.");
    command.options = {{u"location"_s, Texts::tr("ID"), Texts::tr("for one location only")},
                       {u"weeks"_s, Texts::tr("N"), Texts::tr("use of the last N weeks (default 8)")},
                       {u"cover"_s, Texts::tr("N"), Texts::tr("the stock is to last N weeks (default 2)")},
                       {u"all"_s, {}, Texts::tr("also items that last long enough")}};
    command.options += csvOptions() << standbyOption();
    command.run = runBuy;
    return command;
}

} // namespace Tallymere::Cli
