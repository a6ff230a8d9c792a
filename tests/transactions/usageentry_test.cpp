#include "transactions/kinds/usageentry.h"

#include "tests/support/documents.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Apples and bread cost their average of 1.25 and 10, apricots their standard cost of 4; yeast is not stocked.
struct UsageDocument : KitchenTest
{
    UsageDocument()
        : entry(kitchen.database(), prompts)
    {
        kitchen.execute(
            u"UPDATE ItemType SET Inventory = true, CostingMethod = ItemTypeID;"
            "INSERT INTO ItemType (ItemTypeID, Inventory, CostingMethod) VALUES (3, false, 1), (4, true, 3);"
            "UPDATE Item SET StandardCost = 4, WgtAvgCost = 1.25;"
            "UPDATE Item SET WgtAvgCost = 10 WHERE ItemID = 2;"
            "UPDATE Item SET ItemTypeID = 3 WHERE ItemID = 4"_s);
        kitchen.session().clock = [] { return QDate(2026, 8, 9).startOfDay(); };
        entry.open();
    }
    void addLine(double quantity, int item)
    {
        enterLine(entry, item, quantity);
        entry.lines().post();
    }
    void typeQuantity(const Engine::Value &quantity)
    {
        entry.lines().edit();
        entry.lines().set(u"Quantity", quantity);
    }
    QString total() { return entry.header().text(u"InvoiceAmount"); }
    QString totalWith(const Engine::Value &quantity) // in the line
    {
        typeQuantity(quantity);
        entry.lines().post();
        return total();
    }
    QString stored()
    {
        return kitchen.found(
            u"SELECT UsageNo, Seq, Quantity, UnitCost, TaxCodes, ItemOvDesc, InvoiceAmount FROM IUsage "
            "JOIN IUsageDet ON IUsageDet.UsageID = IUsage.UsageID ORDER BY Seq"_s);
    }

    UsageEntry entry;
};
ON_BOTH_STORES(UsageDocument);

TEST_P(UsageDocument, ANewOneIsNumberedFromTheInvoicesAndTakesTheFirstLocation)
{
    const std::pair<int, QString> counters[] = {{0, u"10001"_s},
                                                {1000, u"10001"_s},
                                                {1001, u"1001"_s},
                                                {10'000'000, u"10000000"_s},
                                                {10'000'001, u"10001"_s}};
    for (const auto &[next, number] : counters) {
        kitchen.execute(
            u"DELETE FROM ARInvCtl; INSERT INTO ARInvCtl (NextInvoiceID, NextInvoiceNo) VALUES (7, %1)"_s, next);
        entry.newDocument();
        EXPECT_EQ(entry.caption(), u"Inventory Usage "_s + number);
        EXPECT_EQ(entry.key(), 7);
        EXPECT_EQ(entry.header().integer(u"WarehouseID"), 2); // "Freezer" comes before "Office"
        entry.cancel();
    }
    kitchen.execute(u"DELETE FROM Warehse"_s);
    entry.newDocument();
    entry.header().set(u"UsageNo", {});
    EXPECT_EQ(entry.caption(), u"New Inventory Usage");
    EXPECT_EQ(refusalOf([&] { entry.save(); }), u"No inventory usage has been entered -> Lines");
    addLine(1, 1);
    EXPECT_EQ(refusalOf([&] { entry.save(); }), u"Location no longer exists -> WarehouseID");
    entry.header().set(u"WarehouseID", 1);
    kitchen.execute(u"INSERT INTO Warehse (WarehouseID) VALUES (1)"_s);
    EXPECT_EQ(refusalOf([&] { entry.save(); }), u"Field 'Usage no.' must have a value -> UsageNo");
}

TEST_P(UsageDocument, TakesTheCostOfItsItemsByTheirCostingMethod)
{
    entry.newDocument();
    entry.newLine();
    const std::pair<int, QString> costs[] = {{1, u"1.25"_s}, {2, u"10"_s}, {3, u"4"_s}, {4, u"0"_s}, {99, u"0"_s}};
    for (const auto &[item, cost] : costs) {
        entry.chooseItem(item);
        EXPECT_EQ(entry.lines().text(u"UnitCost"), cost) << item;
    }
    kitchen.execute(
        u"UPDATE Item SET ItemTypeID = 4 WHERE ItemID = 1; UPDATE Item SET WgtAvgCost = NULL WHERE ItemID = 2;"
        "UPDATE Item SET ItemTypeID = 77 WHERE ItemID = 3"_s);
    for (const int item : {1, 2, 3}) {
        entry.chooseItem(item);
        EXPECT_EQ(entry.lines().text(u"UnitCost"), u"0") << item;
    }
    entry.setLineColumn(u"ItemOvDesc"_s);
    EXPECT_EQ(refusalOf([&] { entry.chooseItem(4); }), u"Item 'X9: Yeast' has been suspended -> ItemNo");
}

TEST_P(UsageDocument, KeepsATotalOfItsLinesAndBringsThemBackWithoutCosts)
{
    entry.newDocument();
    addLine(2, 1);
    addLine(4, 2);
    EXPECT_EQ(total(), u"42.5");
    EXPECT_EQ(entry.totalText(), u"42.50");
    entry.lines().first();
    EXPECT_EQ(totalWith(3.0), u"43.75");
    EXPECT_EQ(totalWith({}), u"40");
    EXPECT_EQ(totalWith(3.0), u"43.75");
    entry.newLine();
    entry.removeLine(); // dropped before it was saved
    entry.lines().moveTo(entry.lines().recordCount() - 1);
    typeQuantity(90.0);
    entry.lines().cancel();
    EXPECT_EQ(total(), u"43.75");
    typeQuantity(5.0);
    entry.lines().set(u"UnitCost", 123.45); // the total is at what the item costs, not at this
    entry.lines().set(u"ItemOvDesc", u"Rye"_s);
    entry.save(); // with the line still in edit
    EXPECT_EQ(stored(), u"10001|1|3|1.25|||53.75 10001|2|5|123.45||Rye|53.75");
    ASSERT_TRUE(entry.openDocument(entry.key()));
    typeQuantity(90.0);
    entry.removeLine(); // as it was stored, whatever was being typed
    EXPECT_EQ(total(), u"3.75");
    entry.removeLine();
    EXPECT_TRUE(entry.header().value(u"InvoiceAmount").isNull());
    entry.cancel();
    EXPECT_EQ(stored(), u"10001|1|3||1.2||53.75 10001|2|5||123|Rye|53.75");
}

// What the lines show, in hundredths of the amounts that are shown beside them.
TEST_P(UsageDocument, KeepsTheTotalAtTheSumOfItsLinesWhateverItWasBefore)
{
    const auto shown = [this] {
        Engine::Money sum;
        for (int i = 0; i < entry.lines().recordCount(); ++i)
            sum = sum + entry.lines().valueAt(i, entry.lines().fieldIndex(u"ExtAmount")).toMoney();
        return Engine::Value(sum).toText();
    };
    addDocument(kitchen, DocumentKinds::usage(), 1, 1, {{1, u"3"_s, u"0"_s}, {3, u"5"_s, u"4"_s}, {1, u"2"_s}});
    ASSERT_TRUE(entry.openDocument(1)); // as a count leaves it, without a total
    entry.lines().edit();
    entry.lines().set(u"UnitCost", 1.25);
    entry.lines().post();
    EXPECT_EQ(total(), u"26.25");

    kitchen.execute(u"UPDATE Item SET WgtAvgCost = 2, StandardCost = 7"_s); // posted by others
    entry.lines().refresh();
    addLine(1, 1);
    EXPECT_EQ(total(), u"27.5") << "at the cost of the lines beside it";
    EXPECT_EQ(entry.lines().text(u"UnitCost"), u"1.25");
    addLine(1, 2); // an item that was not on the screen
    EXPECT_EQ(total(), u"29.5");
    EXPECT_EQ(entry.lines().text(u"UnitCost"), u"2");
    entry.lines().edit();
    entry.chooseItem(3);
    entry.lines().post();
    EXPECT_EQ(total(), u"31.5");
    entry.lines().first();
    entry.removeLine();
    EXPECT_EQ(total(), u"27.75");
    EXPECT_EQ(total(), shown());
    entry.save();
    EXPECT_EQ(kitchen.text(u"SELECT InvoiceAmount FROM IUsage"_s), u"27.75");

    ASSERT_TRUE(entry.openDocument(1)); // a visit later, at what is posted by now
    EXPECT_EQ(totalWith(5.0), u"48");
    EXPECT_EQ(total(), shown());
}

TEST_P(UsageDocument, HasNoAmountOfZeroWhereTheStoreIsLost)
{
    entry.newDocument();
    addLine(2, 1);
    entry.save();
    const auto reopen = [this] {
        ASSERT_TRUE(entry.openDocument(entry.key()));
        entry.lines().first();
    };
    reopen();
    kitchen.execute(u"ALTER TABLE ItemType RENAME TO Elsewhere"_s);
    EXPECT_EQ(entry.lines().text(u"ExtAmount"), u"0") << "any other failure counts as nothing";
    kitchen.execute(u"ALTER TABLE Elsewhere RENAME TO ItemType"_s);
    if (GetParam() == Store::Local)
        return; // a file that is open goes on being read
    reopen();
    kitchen.anotherUser(u"bert"_s)->endOtherSessions();
    EXPECT_EQ(entry.lines().text(u"ExtAmount"), u"2.5") << "connected again";
}

} // namespace
