
#include "tests/support/documents.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::ErrorCode;

namespace {

struct Posting : DocumentTest
{
    QStringList posted()
    {
        return kitchen.rows(u"SELECT ReceiptID FROM IReceipt WHERE Posted = true ORDER BY 1"_s);
    }
};
ON_BOTH_STORES(Posting);

TEST_P(Posting, WritesHistoryBalanceAndAverageOfTheWorkedExample)
{
    kitchen.setStock(1, 1, 6, 2.00);
    kitchen.setStock(1, 2, 4, 2.00);
    kitchen.addReceipt(7, 1, 2, {{1, 5, 3.00}}, u"PO-77"_s);
    DocumentPosting posting(kitchen.database(), DocumentKinds::receipt());
    EXPECT_EQ(posting.countText(), u"1 receipt(s) to be posted");
    EXPECT_TRUE(posting.run(prompts, progress));
    EXPECT_EQ(
        kitchen.found(u"SELECT ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, UnitCost, "
                      "TransDescription, ReceiptID, AdjustmentID, ARInvoiceID, UsageID FROM IHist"_s),
        u"1|2|2026|3|3|2026-03-14|5|3|Receipt: 1007   PO: PO-77|7|||");
    EXPECT_EQ(kitchen.onHand(1, 1), 6);
    EXPECT_EQ(kitchen.onHand(1, 2), 9);
    EXPECT_EQ(kitchen.averageCost(1), 2.33);
    EXPECT_EQ(posted(), QStringList(u"7"_s));
    EXPECT_EQ(progress.steps, 1);
    EXPECT_TRUE(progress.finished);
}

TEST_P(Posting, PostsEachKindOfLine)
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    // vendor; on hand and average of item 1; the line; cost in the history; average and on hand afterwards
    const std::tuple<const char *, int, double, double, Kitchen::Line, double, double, double> cases[] = {
        {"no cost on no stock", 1, none, 9, {1, 3, 0}, 0, 9, 3},
        {"a far vendor's currency", 2, none, 0, {1, 2, 1.2345}, 0.93, 0.93, 2},
        {"a currency without rate", 3, none, 0, {1, 2, 1.2345}, 1.2345, 1.23, 2},
        {"a vendor without currency", 5, none, 0, {1, 2, 1.2345}, 1.2345, 1.23, 2},
        {"an item that is gone", 1, none, 9, {99, 2, 1}, 1, 9, 0},
    };
    for (const auto &[name, vendor, onHand, average, line, historyCost, averageAfter, onHandAfter] : cases) {
        SCOPED_TRACE(name);
        kitchen.execute(u"DELETE FROM IBalance; DELETE FROM IHist; DELETE FROM IReceipt; DELETE FROM IRecDet"_s);
        kitchen.execute(u"UPDATE Item SET WgtAvgCost = %1 WHERE ItemID = 1"_s, average);
        if (!std::isnan(onHand))
            kitchen.setStock(1, 1, onHand, average);
        kitchen.addReceipt(1, vendor, 1, {line});
        post();
        EXPECT_EQ(kitchen.number(u"SELECT UnitCost FROM IHist"_s), historyCost);
        EXPECT_EQ(kitchen.text(u"SELECT TransDescription FROM IHist"_s), u"Receipt: 1001");
        EXPECT_EQ(kitchen.averageCost(1), averageAfter);
        EXPECT_EQ(kitchen.onHand(1, 1), onHandAfter);
    }
}

TEST_P(Posting, TakesTheUnpostedOnesWhoseVendorExistsUnlessOthersHavePostedOrDeletedThemMeanwhile)
{
    for (const int id : {1, 2, 3, 4, 6, 7})
        kitchen.addReceipt(id, id == 2 ? 77 : 1, 1, {{1, 1, 1}}); // there is no vendor 77
    kitchen.addReceipt(5, 1, 1, {}); // no lines
    kitchen.execute(u"UPDATE IReceipt SET Posted = NULL WHERE ReceiptID = 3; "
                    "UPDATE IReceipt SET Posted = true WHERE ReceiptID = 4"_s);
    DocumentPosting posting(kitchen.database(), DocumentKinds::receipt());
    EXPECT_EQ(posting.count(), 4);
    kitchen.execute(u"UPDATE IReceipt SET Posted = true WHERE ReceiptID = 1; "
                    "DELETE FROM IReceipt WHERE ReceiptID = 6; DELETE FROM IRecDet WHERE ReceiptID = 6"_s);

    EXPECT_TRUE(posting.run(prompts, progress));

    EXPECT_EQ(posted(), (QStringList{u"1"_s, u"4"_s, u"5"_s, u"7"_s}));
    EXPECT_EQ(kitchen.found(u"SELECT ReceiptID FROM IHist"_s), u"7");
    EXPECT_EQ(posting.posted(), 2);
    EXPECT_EQ(progress.steps, 4);
    EXPECT_FALSE(post()); // nothing left
}

// Each table of the run held by another user: asked about, tried again, and given up without a trace.
TEST_P(Posting, AsksAboutTablesThatAnotherUserHolds)
{
    const std::pair<QString, QString> tables[] = {
        {u"IReceipt"_s, u"Receipts"_s}, {u"IBalance"_s, u"Item Balance"_s}, {u"Item"_s, u"Item"_s}};
    kitchen.addReceipt(1, 1, 1, {{1, 1, 1}});
    const auto other = kitchen.anotherUser();
    Engine::LockManager &theirs = other->database.connection().locks();
    for (const auto &[table, name] : tables) {
        const QString text =
            u"Unable to lock %1 table... this table is being updated by another job.\nIn use by anna on "_s.arg(
                name);
        ASSERT_TRUE(theirs.tryLockTable(table));
        prompts.retries = 1;
        EXPECT_EQ(errorOf([&] { post(); }), ErrorCode::TableLocked);
        EXPECT_EQ(prompts.told().count(text), 2) << qPrintable(text);
        EXPECT_TRUE(posted().isEmpty());
        theirs.unlockTable(table);
        for (const auto &free : tables) {
            EXPECT_TRUE(theirs.tryLockTable(free.first)) << free.first.toStdString();
            theirs.unlockTable(free.first);
        }
    }
}

TEST_P(Posting, OfUsageTakesStockedItemsOutOfTheLocationAndLeavesTheirCost)
{
    // Apples and bread are stocked, apricots are not, the type of yeast is gone.
    kitchen.execute(
        u"UPDATE ItemType SET Inventory = (ItemTypeID = 1); UPDATE Item SET ItemTypeID = 9 WHERE ItemID = 4"_s);
    kitchen.setStock(1, 2, 6, 2.00);
    const DocumentKind &usage = DocumentKinds::usage();
    addDocument(kitchen, usage, 7, 2,
                {{1, u"4"_s, u"1.2345"_s}, {3, u"5"_s}, {1, u"-1"_s}, {99, u"8"_s}, {4, u"2"_s}, {2, u"3"_s}});
    addDocument(kitchen, usage, 8, 1, {{3, u"5"_s}, {0, u"6"_s}}); // nothing of it is stocked
    addDocument(kitchen, usage, 9, 1, {{1, u"-0.0"_s}, {2, u"NULL"_s}});
    EXPECT_EQ(DocumentPosting(kitchen.database(), usage).countText(), u"3 usage record(s) to be posted");

    EXPECT_TRUE(post(usage));

    EXPECT_EQ(
        kitchen.found(
            u"SELECT ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, UnitCost, "
            "TransDescription, ReceiptID, AdjustmentID, ARInvoiceID, UsageID FROM IHist ORDER BY IHistID"_s),
        u"1|2|2026|3|5|2026-03-14|4|1.2345|Inventory Usage No: 10007||||7 1|2|2026|3|5|2026-03-14|-1||Inventory "
        u"Usage No: 10007||||7 2|2|2026|3|5|2026-03-14|3||Inventory Usage No: 10007||||7 "
        u"1|1|2026|3|5|2026-03-14|0||Inventory Usage No: 10009||||9 2|1|2026|3|5|2026-03-14|0||Inventory Usage No: "
        u"10009||||9");
    EXPECT_EQ(kitchen.balances(), u"1|1|0 1|2|3 2|1|0 2|2|-3");
    EXPECT_EQ(kitchen.averageCost(1), 2.00);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IUsage WHERE Posted = true"_s), 3);
    EXPECT_FALSE(post(usage));
}
} // namespace
