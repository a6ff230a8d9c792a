#include "transactions/counting/stockcount.h"

#include "engine/store/tablelocks.h"
#include "tests/support/files.h"
#include "tests/support/kitchen.h"
#include "transactions/counting/countdifferences.h"
#include "transactions/documents/documentkinds.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Food by average cost, Goods by standard cost; Apples, Bread and apricots at the Office.
struct CountTest : KitchenTest
{
    CountTest()
    {
        kitchen.execute(uR"(
            UPDATE ItemType SET Inventory = true, CostingMethod = ItemTypeID;
            UPDATE Item SET Suspended = false WHERE ItemID = 2;
            UPDATE Item SET StandardCost = 4 WHERE ItemID = 3;
            INSERT INTO ARInvCtl (NextInvoiceID, NextInvoiceNo) VALUES (2000, 500);
        )"_s);
        for (const auto &[item, onHand, cost] : {std::tuple{1, 10.0, 1.5}, {2, 5.0, 0.0}, {3, 2.5, 0.0}})
            kitchen.setStock(item, 1, onHand, cost);
        count.setDate(date);
    }

    // "A10 10" for each row, with " -> 8" behind it where that has been counted.
    QString rows() const
    {
        QStringList rows;
        for (int i = 0; i < count.list().size(); ++i) {
            const CountRow &row = count.list().row(i);
            rows << row.itemNo + u' ' + (row.recorded ? QString::number(*row.recorded) : u"none"_s)
                    + (row.typed ? u" -> "_s + QString::number(*row.typed) : QString());
        }
        return rows.join(u", "_s);
    }
    void enter(const QString &itemNo, double quantity) { count.count(count.list().rowOfNumber(itemNo), quantity); }
    // Reads the list of the Office, and counts these.
    void countOffice(const QList<std::pair<QString, double>> &counted = {})
    {
        ASSERT_TRUE(count.open(1, ZeroCounts::Excluded));
        for (const auto &[itemNo, quantity] : counted)
            enter(itemNo, quantity);
    }
    // The lines of the usage that comes of it.
    QString calculated()
    {
        EXPECT_TRUE(count.calculate().usage);
        return usageLines();
    }
    void deleteUsages() { kitchen.execute(u"DELETE FROM IUsageDet; DELETE FROM IUsage"_s); }
    QStringList usages()
    {
        return kitchen.rows(
            u"SELECT UsageID, CustomerID, UsageNo, WarehouseID, Description, InventoryDate, GLYear, "
            "GLPeriod, Posted, Printed, InvoiceAmount FROM IUsage ORDER BY UsageID"_s);
    }
    QString usageLines()
    {
        return kitchen.found(
            u"SELECT UsageID, Seq, Quantity, ItemID, UnitCost FROM IUsageDet ORDER BY UsageID, Seq"_s);
    }
    QString counters() { return kitchen.found(u"SELECT NextInvoiceID, NextInvoiceNo FROM ARInvCtl"_s); }

    const QDate date{2026, 3, 14};
    QTemporaryDir folder;
    StockCount count{kitchen.database(), prompts, CountDrafts(u"kitchen"_s, u"anna"_s, folder.path())};
};
ON_BOTH_STORES(CountTest);

TEST_P(CountTest, ListsWhatIsCountedInTheChosenOrder)
{
    kitchen.execute(uR"(
        INSERT INTO ItemType (ItemTypeID, TypeName, Inventory) VALUES (3, 'food', true), (4, 'Work', false);
        INSERT INTO Item (ItemID, ItemNo, ItemDescription, ItemTypeID, Suspended, StandardCost)
            VALUES (5, 'Z1', 'Chairs, Pledge', 2, false, 0), (6, 'Z2', 'Chairs, pledge', 2, false, 9),
                   (7, 'Z3', 'Hours', 4, false, 0), (8, 'Z4', 'Nuts', 3, false, 1), (9, 'a1', 'Oil', 1, false, 2);
        INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) VALUES (9, 2, 3);
    )"_s);
    for (int item = 4; item <= 7; ++item)
        kitchen.setStock(item, 1, 1, 0);
    countOffice();
    EXPECT_EQ(rows(), u"A10 10, A11 5, B1 2.5, Z2 1");
    count.setZeroCounts(ZeroCounts::Included); // Oil has a balance, elsewhere
    EXPECT_EQ(rows(), u"A10 10, A11 5, B1 2.5, Z2 1, Z4 none");

    enter(u"z2"_s, 7);
    const std::pair<CountList::Order, QString> orders[] = {
        {CountList::Order::Category, u"Apples Bread Nuts apricots Chairs, pledge"_s},
        {CountList::Order::Item, u"Apples apricots Bread Chairs, pledge Nuts"_s},
        {CountList::Order::Cost, u"Apples Bread Nuts apricots Chairs, pledge"_s},
        {CountList::Order::ItemNo, u"Apples Bread apricots Chairs, pledge Nuts"_s}};
    for (const auto &[order, expected] : orders) {
        count.sortBy(order);
        QStringList descriptions;
        for (int i = 0; i < count.list().size(); ++i)
            descriptions.append(count.list().row(i).description);
        EXPECT_EQ(descriptions.join(u' '), expected);
        EXPECT_EQ(count.list().row(count.list().rowOfItem(6)).typed, 7);
    }
}

TEST_P(CountTest, WritesWhatDiffersAsOneUsage)
{
    kitchen.execute(u"UPDATE ARInvCtl SET NextInvoiceID = 10000000"_s);
    countOffice({{u"A10"_s, 8}, {u"A11"_s, 6}, {u"B1"_s, 2.5}});
    EXPECT_EQ(count.list().totals().counted, 3);
    EXPECT_EQ(count.list().totals().differing, 2);
    EXPECT_EQ(count.list().totals().value.toDouble(), -3);
    const auto usage = count.calculate().usage;
    ASSERT_TRUE(usage);
    EXPECT_EQ(usage->lines, 2);
    EXPECT_EQ(usages(), QStringList(u"10000000|-1|500|1|Inventory No: 500|2026-03-14|2026|3|false|false|"_s));
    EXPECT_EQ(usageLines(), u"10000000|1|2|1|1.5 10000000|2|-1|2|0");
    EXPECT_EQ(counters(), u"10001|501"_s);
    EXPECT_EQ(prompts.told(),
              u"warn: Bread, Item ID: 2\r\nhas no Weighted Average Cost.\r\nThe usage will be calculated with a "
              u"zero cost.\r\nYou should edit the resulting usage record and \r\ncorrect the cost, if necessary.");
    EXPECT_FALSE(count.hasEdits() || count.draft());
    EXPECT_EQ(rows(), u"A10 10 -> 8, A11 5 -> 6, B1 2.5 -> 2.5");
    const QString unposted = u"warn: There are unposted transactions for this location."_s;
    EXPECT_THROW(count.calculate(), SilentAbort) << "the same usage a second time";
    EXPECT_TRUE(prompts.last().startsWith(unposted));
    deleteUsages();
    enter(u"A10"_s, 7);
    EXPECT_THROW(count.calculate(), SilentAbort) << "the list does not know what has become of the usage";
    EXPECT_EQ(usages(), QStringList());
    prompts.answer = Answer::Yes;
    EXPECT_TRUE(count.calculate().readsAgain);
    EXPECT_EQ(
        prompts.last(),
        u"Transactions of this location have been posted since this list was read. [&Read again, keep my count|]"_s);
    EXPECT_EQ(count.readAgain(), QString());
    EXPECT_EQ(rows(), u"A10 10 -> 7, A11 5 -> 6, B1 2.5 -> 2.5");
    EXPECT_EQ(calculated(), u"10001|1|3|1|1.5 10001|2|-1|2|0");
}

TEST_P(CountTest, ItIsKnownWhenAnItemHasBeenCountedLast)
{
    const auto counted = [&] {
        return kitchen.found(u"SELECT ItemID, WarehouseID, CountDate FROM ICounted ORDER BY ItemID"_s);
    };
    countOffice({{u"A10"_s, 10}});
    EXPECT_FALSE(count.calculate().usage);
    EXPECT_EQ(counted(), u"1|1|2026-03-14") << "found as recorded";
    count.setDate(date.addDays(-7)); // a count that is entered late
    enter(u"B1"_s, 2);
    calculated();
    EXPECT_EQ(counted(), u"1|1|2026-03-14 3|1|2026-03-07") << "nobody has counted the third one";
    deleteUsages();
    countOffice();
    count.setDate(date.addDays(1));
    enter(u"A10"_s, 9);
    calculated();
    EXPECT_EQ(counted(), u"1|1|2026-03-15 3|1|2026-03-07");
}

TEST_P(CountTest, WritesNothingWhereNothingHasBeenUsed)
{
    countOffice();
    EXPECT_FALSE(count.calculate().usage);
    enter(u"A10"_s, 11);
    EXPECT_FALSE(count.calculate().usage);
    EXPECT_EQ(usages(), QStringList());
    EXPECT_EQ(counters(), u"2000|500"_s);
    EXPECT_THROW(enter(u"A10"_s, -1), RuleError);
    EXPECT_TRUE(count.draft()) << "it has not been calculated";
}

TEST_P(CountTest, TakesNoNoiseOfTheBooksForADifference)
{
    kitchen.setStock(1, 2, 3.3000000000000007, 1);
    kitchen.setStock(2, 2, 3.2999999999999994, 1);
    kitchen.setStock(3, 2, 17, 1);
    ASSERT_TRUE(count.open(2, ZeroCounts::Excluded));
    EXPECT_GE(count.list().highest(count.list().rowOfItem(2)), 3.3);
    enter(u"A10"_s, 3.3);
    enter(u"A11"_s, 3.3);
    EXPECT_FALSE(count.calculate().usage);
    enter(u"B1"_s, 16.9);
    EXPECT_EQ(count.list().totals().differing, 1);
    EXPECT_EQ(calculated(), u"2000|1|0.1|3|4");
}

TEST_P(CountTest, TakesThePeriodAndCostsFromTheBooks)
{
    // Method 1 the average, 2 the standard cost, any other none.
    const std::tuple<int, int, int, QString> cases[] = {
        {2025, 0, 2, u"2025|3|0.25"_s}, {0, 7, 1, u"2026|7|1.5"_s}, {0, 0, 3, u"2026|3|0"_s}};
    kitchen.execute(u"UPDATE Item SET StandardCost = 0.25 WHERE ItemID = 1"_s);
    for (const auto &[year, period, method, written] : cases) {
        deleteUsages();
        kitchen.execute(u"UPDATE Company SET DefaultPeriodYYYY = %1, DefaultPeriodPP = %2; "
                        "UPDATE ItemType SET CostingMethod = %3"_s,
                        year, period, method);
        countOffice({{u"A10"_s, 0}});
        calculated();
        EXPECT_EQ(kitchen.rows(u"SELECT GLYear, GLPeriod, UnitCost FROM IUsage, IUsageDet"_s),
                  QStringList(written));
        EXPECT_EQ(prompts.told(), QString());
    }
}

TEST_P(CountTest, OpensNoLocationWithUnpostedDocuments)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        const QString &table = kind->headerTable;
        kitchen.execute(u"INSERT INTO %1 (%2, WarehouseID, Posted) VALUES (1, 1, false)"_s, table, kind->keyField);
        EXPECT_FALSE(count.open(1, ZeroCounts::Excluded) || count.isOpen()) << qPrintable(table);
        EXPECT_TRUE(
            prompts.last().startsWith("warn: There are unposted transactions for this location.\r\nYou"_L1));
        EXPECT_TRUE(count.open(2, ZeroCounts::Excluded));
        kitchen.execute(u"UPDATE %1 SET Posted = true"_s, table);
    }
    EXPECT_TRUE(count.open(1, ZeroCounts::Excluded));
}

TEST_P(CountTest, DeductsUnpostedUsageInWholeNumbers)
{
    countOffice({{u"A10"_s, 8.5}});
    calculated();
    enter(u"A11"_s, 1);
    count.setZeroCounts(ZeroCounts::Included); // 10 less 1.5, the latter cut to 1
    EXPECT_TRUE(prompts.last().startsWith("warn: There are unposted transactions"_L1));
    EXPECT_THROW(count.calculate(), SilentAbort);
    EXPECT_EQ(rows(), u"A10 9, A11 5, B1 2.5");

    kitchen.execute(u"ALTER TABLE IUsageDet RENAME TO Gone"_s);
    count.setZeroCounts(ZeroCounts::Excluded);
    EXPECT_EQ(prompts.said.value(prompts.said.size() - 2),
              u"error: Error encountered while deducting uposted usage"_s);
    if (GetParam() == Store::Local)
        return;
    kitchen.execute(u"CREATE VIEW IUsageDet AS SELECT * FROM Gone WHERE pg_terminate_backend(pg_backend_pid())"_s);
    EXPECT_EQ(errorOf([&] { count.setZeroCounts(ZeroCounts::Excluded); }), Engine::ErrorCode::ConnectionLost);
    EXPECT_EQ(count.list().size(), 3);
}

TEST_P(CountTest, AsksWhenTheBooksHaveChangedMeanwhile)
{
    const QString changes[] = {u"UPDATE IBalance SET QtyOnHand = 12 WHERE ItemID = 2"_s,
                               u"INSERT INTO IReceipt (ReceiptID, ReceiptNo, ReceiptDate, WarehouseID, Posted) "
                               "VALUES (1, '77', '2026-03-05', 1, false)"_s};
    prompts.ok = false;
    for (const QString &change : changes) {
        kitchen.execute(u"UPDATE IReceipt SET Posted = true"_s);
        countOffice({{u"A10"_s, 9}});
        kitchen.execute(change);
        prompts.take();
        EXPECT_THROW(count.calculate(), SilentAbort);
        EXPECT_EQ(prompts.said.size(), 1);
        EXPECT_TRUE(count.hasEdits());
        EXPECT_EQ(counters(), u"2000|500"_s);
    }
    EXPECT_TRUE(has(prompts.last(), u"\n\nReceipt 77, 05 Mar 26\n\n"_s));
    prompts.ok = true;
    prompts.answer = Answer::No; // nevertheless
    EXPECT_EQ(calculated(), u"2000|1|1|1|1.5");
}

TEST_P(CountTest, ReadsTheListAgainAndKeepsWhatHasBeenCounted)
{
    countOffice({{u"A10"_s, 9}, {u"B1"_s, 1}});
    count.sortBy(CountList::Order::Item);
    count.setStandardCost(2, Engine::Money::fromDouble(7));
    kitchen.execute(u"UPDATE IBalance SET QtyOnHand = 8 WHERE ItemID = 1; "
                    "INSERT INTO IReceipt (ReceiptID, WarehouseID, Posted) VALUES (1, 1, false)"_s);
    prompts.answer = Answer::Yes;
    EXPECT_TRUE(count.calculate().readsAgain);
    EXPECT_TRUE(prompts.last().endsWith("[&Read again, keep my count|&Calculate nevertheless]"_L1));
    EXPECT_THROW(count.readAgain(), SilentAbort) << "what waits would be in no list";
    EXPECT_TRUE(begins(rows(), u"A10 10 -> 9"_s));

    kitchen.execute(u"UPDATE IReceipt SET Posted = true"_s);
    EXPECT_TRUE(count.readAgain().endsWith("1 item has been counted above what is recorded now."_L1));
    EXPECT_EQ(rows(), u"A10 8 -> 9, B1 2.5 -> 1, A11 5");
    EXPECT_EQ(count.list().costs(), (ItemCosts{{2, Engine::Money::fromDouble(7)}}));
    EXPECT_EQ(count.draft()->recorded.value(1), 8);
    prompts.take();
    EXPECT_EQ(calculated(), u"2000|1|-1|1|1.5 2000|2|1.5|3|4");
    EXPECT_EQ(prompts.said, QStringList());
}

// Whatever happens while the user is asked something is looked at before anything is written.
TEST_P(CountTest, WritesTheUsageOnceWhenAnotherUserCalculatesTheSameMeanwhile)
{
    const auto anna = kitchen.anotherUser();
    SpokenPrompts herPrompts;
    StockCount hers(anna->database, herPrompts);
    hers.setDate(date);
    for (StockCount *one : {&hers, &count}) {
        ASSERT_TRUE(one->open(1, ZeroCounts::Excluded));
        one->count(one->list().rowOfNumber(u"A11"_s), 4); // which costs nothing
    }
    prompts.ok = false;
    prompts.onWarn = [&] { EXPECT_TRUE(hers.calculate().usage); };
    EXPECT_THROW(count.calculate(), SilentAbort);
    EXPECT_EQ(prompts.said.size(), 2);
    EXPECT_TRUE(prompts.last().contains("Somebody has saved transactions for this location"_L1));
    EXPECT_TRUE(prompts.last().contains("\n\nInventory Usage 500, 14 Mar 26\n\n"_L1));
    EXPECT_EQ(usageLines(), u"2000|1|1|2|0");
    EXPECT_EQ(counters(), u"2001|501"_s);
}

TEST_P(CountTest, ExcludesWhoeverPostsAndPassesOverNumbersGivenByHand)
{
    kitchen.execute(u"INSERT INTO IUsage (UsageID, UsageNo, WarehouseID, Posted) VALUES (1, '500', 2, false), "
                    "(2, '501', 1, true)"_s);
    kitchen.session().lockAttempts = 1;
    const auto anna = kitchen.anotherUser();
    auto posting = std::make_unique<Engine::TableLocks>(anna->database);
    posting->take(u"IBalance"_s);
    countOffice({{u"A10"_s, 9}});
    EXPECT_THROW(count.calculate(), Engine::EngineError);
    EXPECT_EQ(counters(), u"2000|500"_s);
    EXPECT_TRUE(prompts.last().startsWith("Unable to lock Item Balance table..."_L1));
    EXPECT_TRUE(has(prompts.last(), u"\nIn use by anna on "_s));
    prompts.retries = 1;
    prompts.onRetry = [&] { posting.reset(); };
    EXPECT_EQ(count.calculate().usage->number, u"502"_s);
    kitchen.expectNoLocks();
}

TEST_P(CountTest, KeepsADraftUntilItIsCalculatedOrGivenUp)
{
    ASSERT_TRUE(count.open(1, ZeroCounts::Included));
    enter(u"A10"_s, 0);
    enter(u"A11"_s, 0.1);
    enter(u"B1"_s, 1);
    count.sortBy(CountList::Order::Cost);
    count.setStandardCost(2, Engine::Money::fromDouble(1.25));
    count.forgetCount(2);
    kitchen.execute(u"UPDATE Item SET Suspended = true WHERE ItemID = 2"_s);
    prompts.take();

    StockCount later(kitchen.database(), prompts, CountDrafts(u"kitchen"_s, u"anna"_s, folder.path()));
    ASSERT_EQ(later.locationsWithDraft().size(), 1U);
    EXPECT_EQ(later.locationsWithDraft().front().name, u"Office"_s);
    ASSERT_TRUE(later.open(1, ZeroCounts::Excluded));
    const auto draft = later.draft();
    ASSERT_TRUE(draft);
    EXPECT_EQ(draft->date, date);
    later.resume(*draft);
    EXPECT_EQ(later.zeroCounts(), ZeroCounts::Included);
    EXPECT_EQ(later.list().order(), CountList::Order::Cost);
    EXPECT_EQ(later.list().counts(), (ItemQuantities{{1, 0.0}}));
    EXPECT_EQ(later.list().costs(), (ItemCosts{{3, Engine::Money::fromDouble(1.25)}}));
    EXPECT_EQ(prompts.last(), u"warn: 1 item that has been counted is no longer in the list."_s);

    later.count(later.list().rowOfItem(1), 9);
    kitchen.execute(u"UPDATE IBalance SET QtyOnHand = 8 WHERE ItemID = 1"_s);
    ASSERT_TRUE(later.open(1, ZeroCounts::Included));
    later.resume(*later.draft());
    EXPECT_EQ(prompts.last(),
              u"warn: Transactions have been posted since this list was read: 1 item of this location has another "
              "quantity in the books now.\n\n1 item has been counted above what is recorded now."_s);

    // Another item has the key by now, and one has another key.
    kitchen.execute(
        u"UPDATE Item SET ItemNo = 'C7' WHERE ItemID = 1; UPDATE Item SET ItemNo = 'A10' WHERE ItemID = 3"_s);
    ASSERT_TRUE(later.open(1, ZeroCounts::Included));
    later.resume(*later.draft());
    EXPECT_FALSE(later.list().hasEdits());
    EXPECT_EQ(prompts.last(), u"warn: 1 item that has been counted is no longer in the list."_s);

    const StockCount other(kitchen.database(), prompts, CountDrafts(u"kitchen"_s, u"bert"_s, folder.path()));
    EXPECT_TRUE(other.locationsWithDraft().empty());
    later.dropDraft();
    EXPECT_TRUE(later.locationsWithDraft().empty());
}

TEST(CountDraftFile, IsNotOfAnotherDatabaseInTheSamePlace)
{
    TestStore store(Store::Local);
    const QTemporaryDir folder;
    const auto drafts = [&] {
        return CountDrafts(CountDrafts::nameOf(store.database()), u"anna"_s, folder.path());
    };
    drafts().save(3, {.saved = QDateTime(), .date = QDate(2026, 3, 14), .counts = {{7, 1.5}}});
    EXPECT_TRUE(drafts().load(3));
    store.database().close();
    ASSERT_TRUE(QDir(store.directory()).removeRecursively() && QDir().mkpath(store.directory()));
    store.database().createIfMissing = true;
    EXPECT_FALSE(drafts().load(3));
    EXPECT_TRUE(drafts().locations().isEmpty());
}

} // namespace

TEST(CountDifferencesOf, AListLieWhereTheMoneyIs)
{
    using Engine::Money;
    std::vector<CountRow> rows;
    for (const auto &[cost, prior, counted] : std::vector<std::tuple<double, double, std::optional<double>>>{
             {1.5, 10, 8}, {4, 5, 6}, {0, 7, 2}, {90, 1, {}}, {1.5, 3, 1}, {0.335, 1, 0}, {0.335, 2, 1}, {3, 4, 4}})
        rows.push_back(
            {static_cast<qint64>(rows.size()) + 1, {}, {}, {}, {}, false, Money::fromDouble(cost), prior, counted});
    const CountList list(rows);
    const CountDifferences differences(list);
    std::vector<qint64> items;
    for (const CountDifference &item : differences.items())
        items.push_back(item.itemId);
    EXPECT_EQ(items, (std::vector<qint64>{2, 1, 5, 6, 7, 3})) << "equal ones in the order of the list";
    EXPECT_EQ(differences.over().items, 1);
    EXPECT_EQ(differences.missing().items, 5);
    EXPECT_EQ(differences.missing().value, Money::fromDouble(-6.68)) << "as lines of a usage, each to the cent";
    EXPECT_EQ(differences.together(), Money::fromDouble(-2.68));
    EXPECT_EQ(list.totals().value, differences.together());
    EXPECT_EQ(differences.withoutCost(), 1);
}
