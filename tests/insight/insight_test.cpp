#include "base/rounding.h"
#include "insight/buyinglist.h"
#include "insight/itemcard.h"
#include "insight/monthend.h"
#include "insight/stockasof.h"
#include "insight/whattobuy.h"
#include "reports/reportlist.h"
#include "tests/support/chance.h"
#include "tests/support/documents.h"
#include "transactions/books/totalsvalue.h"

#include <cmath>

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::Money;

namespace {

const QDate today(2026, 3, 31);

// A line of a document, posted or not. Quantities are quarters, so that sums are exact.
struct Moved
{
    const DocumentKind *kind;
    bool posted;
    int item, location, period;
    QDate date;
    double change;
};

// Books of three months, made document by document, and what they must say counted here.
struct InsightTest : KitchenTest
{
    InsightTest()
    {
        kitchen.execute(u"UPDATE ItemType SET Inventory = true"_s);
        random.seed(seed);
        for (int id = 1; id <= 40; ++id)
            addDocument(id, id <= 36);
    }

    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }

    void addDocument(int id, bool posted)
    {
        const QList<const DocumentKind *> &kinds = DocumentKinds::all();
        const DocumentKind &kind = *kinds.at(below(static_cast<int>(kinds.size())));
        const QDate date = today.addDays(-below(90));
        const int period = 1 + below(3);
        addRandomDocument(kitchen, kind, id, 1 + below(4), random);
        kitchen.execute(u"UPDATE %1 SET %2 = '%3', GLPeriod = %4 WHERE %5 = %6"_s.arg(
            kind.headerTable, kind.dateField, date.toString(Qt::ISODate), QString::number(period), kind.keyField,
            QString::number(id)));
        for (const QString &row : kitchen.rows(
                 u"SELECT L.ItemID, H.WarehouseID, L.%1 FROM %2 H JOIN %3 L ON L.%4 = H.%4 WHERE H.%4 = %5"_s.arg(
                     kind.entry.lineColumns.constFirst().field, kind.headerTable, kind.lineTable, kind.keyField,
                     QString::number(id)))) {
            const QStringList parts = row.split(u'|');
            moved.push_back({&kind, posted, parts[0].toInt(), parts[1].toInt(), period, date,
                             stockChange(kind.posting.transType, parts[2].toDouble())});
        }
        if (!posted)
            return;
        DocumentPosting(kitchen.database(), kind).run(prompts, progress);
        for (int item = 1; item <= 3; ++item)
            averages[item][id] = Money::fromDouble(kitchen.averageCost(item));
    }

    double sum(int item, int location, const std::function<bool(const Moved &)> &counts) const
    {
        double total = 0;
        for (const Moved &one : moved)
            if (one.item == item && (location == 0 || one.location == location) && counts(one))
                total += one.change;
        return total;
    }

    const unsigned seed = chanceSeed();
    const testing::ScopedTrace trace{__FILE__, __LINE__, testing::Message() << "TALLYMERE_TEST_SEED=" << seed};
    std::mt19937 random;
    std::vector<Moved> moved;
    std::map<int, std::map<int, Money>> averages; // by item, after each document
};
ON_BOTH_STORES(InsightTest);

TEST_P(InsightTest, ACostIsToldAsItWasPosted)
{
    for (int item = 1; item <= 3; ++item) {
        const CostTrail trail = costTrail(kitchen.database(), item);
        EXPECT_FALSE(trail.isOverridden()) << qPrintable(trail.verdict());
        std::map<int, Money> after; // the last line of each receipt
        for (const CostStep &step : trail.steps) {
            after[step.receipt] = step.averageAfter.value_or(Money::fromDouble(-1));
            EXPECT_EQ(step.onHandAfter, step.onHandBefore + step.received);
        }
        for (const auto &[receipt, average] : after)
            EXPECT_TRUE(average == averages[item][receipt]) << "item " << item << " receipt " << receipt;

        kitchen.execute(u"UPDATE Item SET WgtAvgCost = coalesce(WgtAvgCost, 0) + 1 WHERE ItemID = %1"_s.arg(item));
        const CostTrail changed = costTrail(kitchen.database(), item);
        EXPECT_TRUE(changed.isOverridden());
        EXPECT_EQ(changed.since, trail.since);
        EXPECT_TRUE(changed.verdict().contains(u"by hand"_s));
        EXPECT_EQ(changed.steps.size(), trail.steps.size());
    }
    EXPECT_EQ(refusalOf([&] { costTrail(kitchen.database(), 99); }), u"Item not found -> ");
}

TEST_P(InsightTest, ACardHasTheStockAndItsWays)
{
    for (int item = 1; item <= 3; ++item) {
        const ItemCard card = itemCard(kitchen.database(), item);
        const auto everywhere = [&](const std::function<bool(const Moved &)> &counts) {
            return sum(item, 0, counts);
        };
        EXPECT_EQ(card.onHand, everywhere(&Moved::posted));
        for (const StockAtLocation &place : card.stock)
            EXPECT_EQ(place.onHand, sum(item, place.location, &Moved::posted));
        double waiting = 0;
        for (const WaitingStock &one : card.waiting) {
            EXPECT_EQ(one.change,
                      everywhere([&](const Moved &moving) { return !moving.posted && moving.kind == one.kind; }));
            waiting += one.change;
        }
        EXPECT_EQ(waiting, everywhere([](const Moved &one) { return !one.posted; }));
        EXPECT_EQ(card.averageCost, Money::fromDouble(kitchen.averageCost(item)));
        EXPECT_EQ(card.costs.size(), card.trail.steps.size());
        if (!card.costs.empty()) {
            EXPECT_EQ(card.costs.back().cost, card.averageCost);
        }

        // The curve stands at the end of each day where the stock of that day did.
        for (size_t i = 0; i < card.movements.size(); ++i) {
            const ItemMovement &movement = card.movements[i];
            ASSERT_NE(movement.kind, nullptr);
            EXPECT_GT(movement.document, 0);
            if (i + 1 < card.movements.size() && card.movements[i + 1].date == movement.date)
                continue;
            EXPECT_EQ(movement.onHand,
                      everywhere([&](const Moved &one) { return one.posted && one.date <= movement.date; }));
        }
    }
    EXPECT_EQ(refusalOf([&] { itemCard(kitchen.database(), 99); }), u"Item not found -> ");
}

TEST_P(InsightTest, ACardValuesTheStockAsTheTotalsDo)
{
    kitchen.execute(u"UPDATE Item SET StandardCost = 7.7777"_s);
    for (const CostingMethod method : {CostingMethod::Standard, CostingMethod::Average, CostingMethod::None}) {
        kitchen.execute(u"UPDATE ItemType SET CostingMethod = %1"_s.arg(static_cast<int>(method)));
        const ItemCard card = itemCard(kitchen.database(), 1);
        const Money cost = method == CostingMethod::Standard ? Money::fromDouble(7.7777) : card.averageCost;
        EXPECT_EQ(card.value, amountOf(card.onHand, cost)) << static_cast<int>(method);
    }
}

TEST_P(InsightTest, ALongHistoryIsThinnedOut)
{
    kitchen.execute(u"DELETE FROM IHist"_s);
    Engine::Connection &store = kitchen.database().connection();
    Engine::Transaction transaction(store);
    const Engine::StatementPtr insert = store.prepare(
        u"INSERT INTO IHist (ItemID, WarehouseID, TransType, Quantity, TransDate) VALUES (1, 1, 1, 1, ?)"_s);
    for (int i = 0; i < 2 * static_cast<int>(mostMovements); ++i) {
        insert->bind(0, today.addDays(i / 2 - 5'000));
        insert->execute();
    }
    transaction.commit();
    const ItemCard card = itemCard(kitchen.database(), 1);
    EXPECT_TRUE(card.isThinned);
    EXPECT_EQ(card.movements.size(), mostMovements); // one of each day
    EXPECT_EQ(card.movements.back().onHand, card.onHand);
    EXPECT_EQ(card.movements[1].onHand - card.movements[0].onHand, 2);
}

// By item, at one location.
std::map<int, double> reportedStock(Kitchen &kitchen, const ReportSelection &selection)
{
    const ReportDescription &report = *ReportList::find(u"Stock as of"_s);
    const Printing::RowReaderPtr rows = report.rows(kitchen.database(), report, selection);
    const auto number = static_cast<size_t>(rows->fields().indexOf(u"ItemNo"_s));
    const auto quantity = static_cast<size_t>(rows->fields().indexOf(u"QtyThen"_s));
    std::map<int, double> found;
    Printing::ReportRow row;
    while (rows->next(row))
        if (row.kind == Printing::RowKind::Detail)
            found[kitchen.value(u"SELECT ItemID FROM Item WHERE ItemNo = '%1'"_s, row.values[number].toText())
                      .toInt()] = row.values[quantity].toDouble();
    return found;
}

TEST_P(InsightTest, TheStockIsThatOfItsTime)
{
    for (int trial = 0; trial < 6; ++trial) {
        const QDate day = today.addDays(-below(90));
        const int period = 1 + below(3);
        const StockAsOf byDay(kitchen.database(), {.day = day});
        const StockAsOf byPeriod(kitchen.database(), {.day = {}, .year = 2026, .period = period});
        for (int item = 1; item <= 3; ++item) {
            for (int location = 1; location <= 2; ++location) {
                EXPECT_EQ(byDay.onHand(item, location),
                          sum(item, location, [&](const Moved &one) { return one.posted && one.date <= day; }));
                EXPECT_EQ(byPeriod.onHand(item, location), sum(item, location, [&](const Moved &one) {
                              return one.posted && one.period <= period;
                          }));
            }
        }
        for (const auto &[item, quantity] : reportedStock(kitchen, {.warehouseId = 1, .day = day}))
            EXPECT_EQ(quantity, byDay.onHand(item, 1)) << item;
        const auto reported = reportedStock(kitchen, {.warehouseId = 1, .period = period, .year = 2026});
        EXPECT_GE(reported.size(), 1U);
        for (const auto &[item, quantity] : reported)
            EXPECT_EQ(quantity, byPeriod.onHand(item, 1)) << item;
    }
}

TEST_P(InsightTest, TotalsTellValueAndDays)
{
    kitchen.execute(uR"(
        UPDATE ItemType SET CostingMethod = ItemTypeID;
        UPDATE Item SET StandardCost = 1.005 WHERE ItemID = 3;
        INSERT INTO ICounted (ItemID, WarehouseID, CountDate) VALUES (1, 2, '2026-03-14');
        INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) VALUES (4, 1, 0);
    )"_s);
    const int type = kitchen.value(u"SELECT ItemTypeID FROM Item WHERE ItemID = 3"_s).toInt();
    ASSERT_EQ(type, 2) << "at standard cost";
    TotalsView view(kitchen.database(), TotalsView::Figures::All);
    view.open();
    Engine::Query &rows = view.query();
    const QDate day = today.addDays(-45);
    int notMoved = 0;
    for (rows.first(); !rows.atEnd(); rows.next()) {
        const int item = rows.integer(Fields::ItemID);
        const int location = rows.integer(Fields::WarehouseID);
        const double onHand = sum(item, location, &Moved::posted);
        EXPECT_EQ(rows.number(Fields::QtyOnHand), onHand);
        const double cost = item == 3 ? 1.005 : kitchen.averageCost(item);
        EXPECT_NEAR(rows.value(TotalsView::Value).toDouble(), onHand * cost, 0.005 + 1e-9);
        QDate last;
        for (const Moved &one : moved)
            if (one.posted && one.item == item && one.location == location && (last.isNull() || one.date > last))
                last = one.date;
        EXPECT_EQ(rows.value(TotalsView::LastMoved).toDate(), last);
        EXPECT_EQ(rows.value(TotalsView::LastCounted).toDate(),
                  item == 1 && location == 2 ? QDate(2026, 3, 14) : QDate());
        notMoved += last < day ? 1 : 0; // never is less
    }
    for (const QString &filter :
         {QString(), TotalsView::belowZero(), TotalsView::filterExpression({.itemId = 3, .warehouseId = 2}),
          TotalsView::filterExpression({.notMovedSince = day}),
          u"(ItemNo = 'A10') OR (WarehouseName = 'Office')"_s}) {
        rows.setFilter(filter);
        rows.setFiltered(!filter.isEmpty());
        const auto other = [](int item, int location) { return item * 2.5 - location; };
        Engine::Money shown;
        Engine::Money ofOther;
        for (rows.first(); !rows.atEnd(); rows.next()) {
            shown = shown + rows.money(TotalsView::Value);
            const double quantity = other(rows.integer(Fields::ItemID), rows.integer(Fields::WarehouseID));
            ofOther = ofOther + TotalsView::valueOf(rows, quantity).toMoney();
        }
        const auto addedUp = [&](const TotalsValue::Quantity &quantity) {
            TotalsValue value(kitchen.database(), filter, quantity);
            while (value.readOn(0))
                ;
            return value.sum();
        };
        EXPECT_EQ(addedUp({}), shown) << qPrintable(filter);
        EXPECT_EQ(addedUp(other), ofOther) << "at the same costs";
    }
    rows.setFilter(TotalsView::filterExpression({.notMovedSince = day}));
    rows.setFiltered(true);
    EXPECT_EQ(rows.recordCount(), notMoved);
    rows.setFilter(TotalsView::filterExpression({.warehouseId = 1, .stock = TotalsView::Filter::Stock::Zero}));
    EXPECT_TRUE(rows.locate(u"ItemID"_s, {4}));
}

TEST_P(InsightTest, WhatToBuyFollowsUseAndStock)
{
    kitchen.execute(u"UPDATE Item SET Suspended = true WHERE ItemID = 3"_s);
    for (const int location : {0, 1, 2}) {
        const BuyingPlan plan{.today = today, .location = location, .weeks = 4, .cover = 3, .alsoInStock = true};
        std::map<int, ItemToBuy> found;
        for (const ItemToBuy &item : whatToBuy(kitchen.database(), plan))
            found[item.item] = item;
        EXPECT_FALSE(found.contains(3)) << "suspended";
        for (int item = 1; item <= 2; ++item) {
            const double used = -sum(item, location, [&](const Moved &one) {
                return one.posted && one.kind == &DocumentKinds::usage() && one.date > today.addDays(-28);
            });
            ASSERT_EQ(found.contains(item), used > 0) << item;
            if (used <= 0)
                continue;
            const ItemToBuy &told = found[item];
            EXPECT_EQ(told.usePerWeek, used / 4);
            EXPECT_EQ(told.onHand, sum(item, location, &Moved::posted));
            EXPECT_EQ(told.unposted, sum(item, location, [](const Moved &one) { return !one.posted; }));
            const double there = told.onHand + told.unposted;
            EXPECT_EQ(told.proposed, std::max(0.0, std::ceil(3 * used / 4 - there)));
            EXPECT_NEAR(told.daysLeft, std::max(0.0, there / used * 28), 0.05 + 1e-9);
            const QString vendor = kitchen.text(
                u"SELECT R.VendorID FROM IHist H JOIN IReceipt R ON R.ReceiptID = H.ReceiptID WHERE H.ItemID = %1 "
                "ORDER BY H.IHistID DESC LIMIT 1"_s.arg(item));
            EXPECT_EQ(told.vendor, vendor.toInt());
        }
    }
    EXPECT_NE(refusalOf([&] { whatToBuy(kitchen.database(), {.today = today, .weeks = 0}); }), QString());
}

// Currency 2 is worth 0.75; V2 has it.
TEST_P(InsightTest, WhatIsToBeBoughtBecomesAReceipt)
{
    kitchen.execute(u"UPDATE Item SET Suspended = false; DELETE FROM IHist WHERE TransType = 3"_s);
    ::addDocument(kitchen, DocumentKinds::receipt(), 91, 1, {{1, u"1"_s, u"4"_s}, {2, u"1"_s, u"6"_s}}, 2);
    ::addDocument(kitchen, DocumentKinds::usage(), 92, 1, {{1, u"10000"_s}, {2, u"10000"_s}});
    kitchen.execute(u"UPDATE IReceipt SET Posted = true WHERE Posted = false AND ReceiptID < 91"_s);
    for (const DocumentKind *kind : {&DocumentKinds::receipt(), &DocumentKinds::usage()})
        DocumentPosting(kitchen.database(), *kind).run(prompts, progress);
    BuyingList list;
    const BuyingPlan plan{.today = today, .location = 1, .weeks = 13, .cover = 500};
    list.read(kitchen.database(), plan);
    int first = -1;
    for (int row = 0; row < list.size(); ++row)
        if (list.row(row).item.item == 1)
            first = row;
    ASSERT_GE(first, 0);
    EXPECT_EQ(list.row(first).item.vendor, 2);
    for (int row = 0; row < list.size(); ++row)
        list.setQuantity(row, list.row(row).item.item == 1 ? 2.5 : 0);
    EXPECT_EQ(list.chosen(), 1);
    EXPECT_THROW(list.setQuantity(first, -1), RuleError);
    list.read(kitchen.database(), plan);
    EXPECT_EQ(list.row(first).quantity(), 2.5) << "stays with its item";

    const PlannedReceipt receipt = list.receiptOf(first);
    const auto entry = openEntry(kitchen.database(), DocumentKinds::receipt(), prompts);
    beginPlannedReceipt(*entry, receipt);
    entry->save();
    const int key = entry->key();
    EXPECT_EQ(kitchen.found(u"SELECT VendorID, WarehouseID, Posted FROM IReceipt WHERE ReceiptID = %1"_s.arg(key)),
              u"2|1|false");
    EXPECT_EQ(kitchen.found(u"SELECT ItemID, QtyReceived, UnitCost FROM IRecDet WHERE ReceiptID = %1"_s.arg(key)),
              u"1|2.5|4")
        << "in the vendor's currency";
    list.forgetTyped(receipt);
    list.read(kitchen.database(), plan);
    EXPECT_FALSE(list.row(first).typed);

    const QString receipts = kitchen.found(u"SELECT COUNT(*) FROM IReceipt"_s);
    PlannedReceipt two = receipt;
    two.lines.insert(two.lines.begin(), {.item = 77, .quantity = 1}); // which is gone
    EXPECT_TRUE(refusalOf([&] { beginPlannedReceipt(*entry, two); }).startsWith(u"Line 1 cannot be bought"_s));
    EXPECT_EQ(kitchen.found(u"SELECT COUNT(*) FROM IReceipt"_s), receipts);

    kitchen.execute(u"UPDATE Vendor SET Suspended = true WHERE VendorID = 2"_s);
    EXPECT_TRUE(refusalOf([&] { beginPlannedReceipt(*entry, receipt); }).contains(u"has been suspended"_s));
    EXPECT_EQ(kitchen.found(u"SELECT COUNT(*) FROM IReceipt"_s), receipts);
}

TEST_P(InsightTest, TheMonthIsDoneWhenEachOfItsLinesIs)
{
    MonthEndSource source{.books = {.database = kitchen.database(), .user = u"anna"_s},
                          .countedSince = QDate(2026, 3, 10),
                          .valuePrinted = {}};
    const auto figure = [&](const QString &name) {
        for (const MonthEndLine &line : monthEndLines())
            if (line.name == name)
                return line.ask(source)();
        ADD_FAILURE() << qPrintable(name);
        return MonthEndFigure();
    };
    int waiting = 0;
    for (const DocumentKind *kind : DocumentKinds::all()) {
        const QString name = kind->name.left(1).toUpper() + kind->name.mid(1);
        const MonthEndFigure found = figure(u"monthEnd"_s + name);
        EXPECT_EQ(found.isMet, found.text == u"0"_s);
        waiting += found.text.toInt();
    }
    EXPECT_EQ(waiting, 4);
    kitchen.execute(
        u"UPDATE IBalance SET QtyOnHand = 0; UPDATE IBalance SET QtyOnHand = -1 WHERE WarehouseID = 2"_s);
    EXPECT_FALSE(figure(u"monthEndBelowZero"_s).isMet);
    EXPECT_EQ(figure(u"monthEndCounted"_s).detail, u"Not counted: Freezer"_s) << "the other one has no stock";
    kitchen.execute(u"UPDATE IBalance SET QtyOnHand = 5; "
                    "INSERT INTO ICounted (ItemID, WarehouseID, CountDate) SELECT MIN(ItemID), WarehouseID, "
                    "'2026-03-10' FROM IBalance GROUP BY WarehouseID; "
                    "UPDATE ICounted SET CountDate = '2026-03-09' WHERE WarehouseID = 2"_s);
    EXPECT_TRUE(figure(u"monthEndBelowZero"_s).isMet);
    EXPECT_EQ(figure(u"monthEndCounted"_s).text, u"1 of 2"_s);
    EXPECT_FALSE(figure(u"monthEndCounted"_s).isMet);
    source.countedSince = QDate(2026, 3, 9);
    EXPECT_TRUE(figure(u"monthEndCounted"_s).isMet);
    EXPECT_FALSE(figure(u"monthEndValue"_s).isMet);
    source.valuePrinted = QDateTime(today, QTime(17, 0));
    EXPECT_TRUE(figure(u"monthEndValue"_s).isMet);

    QDate first;
    for (const Moved &one : moved)
        if (one.posted && one.period == 2 && (first.isNull() || one.date < first))
            first = one.date;
    EXPECT_EQ(beginOf(kitchen.database(), {2026, 2}, today), first);
    EXPECT_EQ(beginOf(kitchen.database(), {2026, 7}, today), QDate(2026, 3, 1)) << "nothing is posted";
}

TEST_P(InsightTest, ThePeriodIsMovedOnOnceAndAsFarAsItIsAllowed)
{
    const auto company = [&] {
        return kitchen.found(
            u"SELECT DefaultPeriodPP, DefaultPeriodYYYY, WPeriodFromPP, WPeriodFromYYYY, WPeriodToPP, "
            "WPeriodToYYYY, EPeriodFromPP, EPeriodToPP, EPeriodToYYYY FROM Company"_s);
    };
    const auto refusal = [&](const Period &ending) {
        return refusalOf([&] { openNextPeriod(kitchen.database(), ending, u"maria"_s); });
    };
    kitchen.makeHost(); // which keeps the notes
    kitchen.execute(u"UPDATE Company SET WPeriodFromPP = 2, WPeriodFromYYYY = 2026, EPeriodToPP = 12, "
                    "EPeriodToYYYY = 2026"_s);
    openNextPeriod(kitchen.database(), {2026, 3}, u"maria"_s);
    EXPECT_EQ(company(), u"4|2026|4|2026||||12|2026") << "what is not set stays so";
    EXPECT_EQ(kitchen.found(u"SELECT Event, \"user\" FROM History"_s),
              u"Period 4/2026 opened after 3/2026.|maria"_s);
    EXPECT_EQ(refusal({2026, 3}), u"The default period is 4/2026 by now: somebody has moved it meanwhile. -> "_s);
    {
        TheirTable theirs(kitchen, u"Company"_s);
        theirs.edit();
        EXPECT_THROW(openNextPeriod(kitchen.database(), {2026, 4}, u"maria"_s), Engine::EngineError);
    }
    kitchen.execute(u"UPDATE Company SET DefaultPeriodPP = 12"_s);
    EXPECT_TRUE(refusal({2026, 12}).contains(u"is not within allowed range"_s));
    EXPECT_EQ(company(), u"12|2026|4|2026||||12|2026");
    kitchen.execute(u"UPDATE Company SET EPeriodToYYYY = 2027"_s);
    openNextPeriod(kitchen.database(), {2026, 12}, u"maria"_s);
    EXPECT_EQ(company(), u"1|2027|1|2027||||12|2027");
    kitchen.execute(u"UPDATE Company SET DefaultPeriodPP = NULL"_s);
    EXPECT_TRUE(EndingPeriod::readFrom(kitchen.database(), today).followsCalendar);
    EXPECT_TRUE(refusal({2027, 3}).startsWith(u"The organization sets no default period"_s));
}

} // namespace
