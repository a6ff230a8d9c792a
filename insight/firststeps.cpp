#include "insight/firststeps.h"

#include "data/fiscalperiod.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "insight/texts.h"
#include "master/masterkind.h"
#include "master/masterkinds.h"
#include "transactions/documents/documentkind.h"
#include "transactions/documents/documentkinds.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

using State = Engine::Answer<FirstStepState>;

// Stops at the first row.
Engine::Answer<bool> isAny(Engine::Database &database, const QString &rows)
{
    Engine::StatementPtr row = database.connection().prepare("SELECT 1 FROM "_L1 + rows + " LIMIT 1"_L1);
    return [row = Engine::asked(std::move(row))] { return row->next(); };
}

// Whoever has posted something works already, with what the books had to begin with if need be.
Engine::Answer<bool> isAtWork(Engine::Database &database) { return isAny(database, u"IHist"_s); }

// The year is there from the start; a period that nobody has chosen is the month of the calendar.
State period(Engine::Database &database)
{
    const QDate today = database.session().today();
    return [today, row = std::shared_ptr(FiscalSettings::ask(database)), atWork = isAtWork(database)] {
        const FiscalSettings settings = FiscalSettings::from(*row);
        const PeriodVerdict verdict = judgePeriod(settings, defaultPeriod(settings, today));
        const bool isChosen = settings.defaultPeriod.year > 0 && settings.defaultPeriod.number > 0;
        return FirstStepState{.isDone = verdict == PeriodVerdict::Fine && (isChosen || atWork()),
                              .screen = {},
                              .detail = periodMessage(verdict)};
    };
}

// Beside the one that new books begin with, or that one under a name of the company's.
State locations(Engine::Database &database)
{
    Engine::StatementPtr first = database.connection().prepare(
        u"SELECT WarehouseID, WarehouseName FROM Warehse ORDER BY WarehouseID LIMIT 2"_s);
    return [rows = Engine::asked(std::move(first)), atWork = isAtWork(database)] {
        const bool isOwn = rows->next() && (rows->intAt(0) != 1 || rows->textAt(1) != "Office"_L1 || rows->next());
        return FirstStepState{.isDone = isOwn || atWork()};
    };
}

// Only what is of a type with stock is received and counted.
State types(Engine::Database &database)
{
    return [ofStock = isAny(database, u"ItemType WHERE Inventory = true"_s), any = isAny(database, u"ItemType"_s)] {
        if (ofStock())
            return FirstStepState{.isDone = true};
        return FirstStepState{
            .detail = any()
                ? InsightTexts::tr("None of the item types is kept in stock: tick Inventory in one of them.")
                : QString()};
    };
}

State isThere(Engine::Database &database, const QString &table)
{
    return [any = isAny(database, table)] { return FirstStepState{.isDone = any()}; };
}

State items(Engine::Database &database) { return isThere(database, u"Item"_s); }

State vendors(Engine::Database &database) { return isThere(database, u"Vendor"_s); }

// A count only finds what is less than recorded, so the first one goes into the books as what has been received. They are the
// opening stock when it has been posted.
State count(Engine::Database &database)
{
    const DocumentKind &receipt = DocumentKinds::receipt();
    return [&receipt, atWork = isAtWork(database), waits = isAny(database, receipt.headerTable)] {
        if (atWork())
            return FirstStepState{.isDone = true};
        if (!waits())
            return FirstStepState();
        return FirstStepState{.screen = receipt.posting.screen,
                              .detail = InsightTexts::tr("The receipt of what is there is waiting to be posted.")};
    };
}

// By hand in the list of a kind, or from a file of it.
QList<FirstStepWay> waysOf(const QString &name, const MasterKind &kind)
{
    return {{.name = name + u"Hand"_s, .command = InsightTexts::tr("By Hand"), .screen = kind.list.screen},
            {.name = name + u"File"_s,
             .command = InsightTexts::tr("From a Spreadsheet..."),
             .screen = {},
             .importKind = kind.name}};
}

QList<FirstStep> describe()
{
    return {
        {.name = u"firstPeriod"_s,
         .title = InsightTexts::tr("Fiscal year and period"),
         .purpose = InsightTexts::tr("When your year begins, and the period that new documents go into."),
         .ways = {{.name = u"firstPeriodShow"_s, .command = InsightTexts::tr("Show"), .screen = u"frmCompany"_s}},
         .ask = period},
        {.name = u"firstLocations"_s,
         .title = InsightTexts::tr("Locations"),
         .purpose = InsightTexts::tr("The rooms and shelves where stock is kept, each counted by itself."),
         .ways = waysOf(u"firstLocations"_s, MasterKinds::location()),
         .ask = locations},
        {.name = u"firstTypes"_s,
         .title = InsightTexts::tr("Item types"),
         .purpose =
             InsightTexts::tr("Kinds of goods, such as produce or packing; each says how its items are costed."),
         .ways = waysOf(u"firstTypes"_s, MasterKinds::itemType()),
         .ask = types},
        {.name = u"firstItems"_s,
         .title = InsightTexts::tr("Items"),
         .purpose = InsightTexts::tr("The goods themselves, with their numbers, units and types."),
         .ways = waysOf(u"firstItems"_s, MasterKinds::item()),
         .ask = items},
        {.name = u"firstVendors"_s,
         .title = InsightTexts::tr("Vendors"),
         .purpose = InsightTexts::tr("Whom goods are received from."),
         .ways = waysOf(u"firstVendors"_s, MasterKinds::vendor()),
         .ask = vendors},
        {.name = u"firstCount"_s,
         .title = InsightTexts::tr("First count"),
         .purpose = InsightTexts::tr(
             "What is on the shelves: counted on a form, entered as a receipt with its costs, posted."),
         .ways = {{.name = u"firstCountForm"_s,
                   .command = InsightTexts::tr("Blank Form..."),
                   .screen = u"FormBlankInventoryReportSelection"_s},
                  {.name = u"firstCountReceipt"_s,
                   .command = InsightTexts::tr("As a Receipt"),
                   .screen = DocumentKinds::receipt().list.screen}},
         .ask = count},
    };
}

} // namespace

const QList<FirstStep> &firstSteps()
{
    static const QList<FirstStep> steps = describe();
    return steps;
}

QList<FirstStepState> readFirstSteps(Engine::Database &database)
{
    return Engine::answersOf(firstSteps(), database);
}

int openSteps(const QList<FirstStepState> &states)
{
    return static_cast<int>(
        std::count_if(states.begin(), states.end(), [](const auto &one) { return !one.isDone; }));
}

} // namespace Tallymere
