#include "engine/store/tablelocks.h"
#include "master/itemsync.h"
#include "master/locationsync.h"
#include "tests/support/brokentable.h"
#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::ErrorCode;

namespace {

// The kitchen with the host's places and items. Its locations are linked to no place, and its items' numbers are no
// host items' IDs.
struct HostSyncTest : KitchenTest
{
    HostSyncTest() { kitchen.makeHost(); }

    // Another program's idea of a table: no key, and room for long texts.
    void replaceTable(const QString &table, const QString &columns)
    {
        kitchen.execute(u"DROP TABLE %1; CREATE TABLE %1 (%2)"_s, table, columns);
    }
};

struct ItemSyncTest : HostSyncTest
{
    ItemSyncTest()
    {
        kitchen.session().waitFor = [](std::chrono::milliseconds) {};
        kitchen.execute(u"DELETE FROM Item; INSERT INTO ItemCtl (NextItemNo, NextItemID) VALUES (1001, 10)"_s);
    }
    HostSyncResult run() { return ItemSync(kitchen.database()).run(progress); }
    void addHostItem(int id, const QString &name, const QString &price = u"1"_s, const QString &meal = u"'B'"_s)
    {
        kitchen.execute(u"INSERT INTO Items (Item_ID, Meal_Item, Billed_Amount, Meal) VALUES (%1, %2, %3, %4)"_s,
                        id, name, price, meal);
    }
    void addItem(int key, const QString &number)
    {
        kitchen.execute(u"INSERT INTO Item (ItemID, ItemNo, ItemDescription, UnitPrice, ItemTypeID, Suspended) "
                        "VALUES (%1, '%2', 'old', 5, 9, true)"_s,
                        key, number);
    }
    QString keysAndNumbers() { return kitchen.found(u"SELECT ItemID, ItemNo FROM Item ORDER BY 1"_s); }
    QString nextItemID() { return kitchen.text(u"SELECT NextItemID FROM ItemCtl"_s); }
    QString of(const QString &field, int key)
    {
        return kitchen.text(u"SELECT %1 FROM Item WHERE ItemID = %2"_s, field, key);
    }
};
ON_BOTH_STORES(ItemSyncTest);

TEST_P(ItemSyncTest, NewItemsTakeReservedKeysAndLeaveOneUnused)
{
    for (const int id : {30, 4, 17})
        addHostItem(id, u"'Meal %1'"_s.arg(id), u"2.5"_s);
    EXPECT_EQ(run().added, 3);
    EXPECT_EQ(kitchen.found(u"SELECT ItemID, ItemNo, ItemDescription, UnitPrice, ItemTypeID, Suspended, WgtAvgCost "
                            "FROM Item ORDER BY ItemID"_s),
              u"10|4|Meal 4|2.5|1|false| 11|17|Meal 17|2.5|1|false| 12|30|Meal 30|2.5|1|false|");
    EXPECT_EQ(nextItemID(), u"14");
    EXPECT_EQ(kitchen.text(u"SELECT NextItemNo FROM ItemCtl"_s), u"1001");

    EXPECT_EQ(run().added, 0);
    EXPECT_EQ(nextItemID(), u"15") << "the gap is kept also when nothing is new";
}

TEST_P(ItemSyncTest, MealCodesDecideTheTypeAndUnknownOnesChangeIt)
{
    int id = 0;
    for (const char16_t *meal : {u"'B'", u"'L'", u"'D'", u"'MF'", u"'SF'", u"'O'", u"'X'", u"'b'", u"''", u"NULL"})
        addHostItem(++id, u"'Meal'"_s, u"1"_s, QString::fromUtf16(meal));
    const auto types = [this] { return kitchen.found(u"SELECT ItemTypeID FROM Item ORDER BY ItemID"_s); };
    run();
    EXPECT_EQ(types(), u"1 2 3 4 5 6 3 3 3 3");
    EXPECT_EQ(run().updated, 4);
    EXPECT_EQ(types(), u"1 2 3 4 5 6 6 6 6 6");
}

TEST_P(ItemSyncTest, NumbersLinkByWhatTheyReadAs)
{
    int key = 0;
    for (const QString &number : {u"123"_s, u"000123"_s, u" 123 "_s, u"A123"_s, u"123.0"_s, u"123 eggs"_s, u""_s,
                                  u"99999999999999999999"_s, u"4294967419"_s, u"\t123"_s, u"１２３"_s, u"+-123"_s})
        addItem(++key, number);
    kitchen.execute(u"INSERT INTO Item (ItemID) VALUES (13)"_s);
    kitchen.execute(u"UPDATE ItemCtl SET NextItemID = 20"_s);
    addHostItem(123, u"'new'"_s);
    addHostItem(5, u"'other'"_s);
    const HostSyncResult result = run();
    EXPECT_EQ(result.notUpdated, QString());
    EXPECT_EQ(result.updated, 3);
    EXPECT_EQ(result.added, 1);
    EXPECT_EQ(kitchen.found(u"SELECT ItemID FROM Item WHERE ItemDescription = 'new' ORDER BY 1"_s), u"1 2 3");
    EXPECT_EQ(of(u"ItemNo"_s, 2), u"000123");
    EXPECT_EQ(of(u"ItemNo"_s, 20), u"5");
    EXPECT_EQ(of(u"Suspended"_s, 1), of(u"Suspended"_s, 4)) << "which is the user's";
}

TEST_P(ItemSyncTest, OnlyChangedItemsAreUpdated)
{
    // Description and price of the item, then of the host's; description, price and type afterwards.
    const std::tuple<const char *, QString, QString, QString, QString, QString> cases[] = {
        {"nothing", u"'Soup'"_s, u"2"_s, u"'Soup'"_s, u"2"_s, u"Soup|2|9"_s},
        {"name", u"'Soup'"_s, u"2"_s, u"'soup'"_s, u"2"_s, u"soup|2|1"_s},
        {"price", u"'Soup'"_s, u"2"_s, u"'Soup'"_s, u"2.25"_s, u"Soup|2.25|1"_s},
        {"no price in the host", u"'Soup'"_s, u"0"_s, u"'Soup'"_s, u"NULL"_s, u"Soup|0|9"_s},
        {"price gone", u"'Soup'"_s, u"2"_s, u"'Soup'"_s, u"NULL"_s, u"Soup||1"_s},
        {"no price on either side", u"'Soup'"_s, u"NULL"_s, u"'Soup'"_s, u"NULL"_s, u"Soup||9"_s},
        {"no name yet", u"NULL"_s, u"2"_s, u"'Soup'"_s, u"2"_s, u"Soup|2|1"_s},
        {"name gone", u"'Soup'"_s, u"2"_s, u"NULL"_s, u"2"_s, u"|2|1"_s},
        {"no name on either side", u"NULL"_s, u"2"_s, u"NULL"_s, u"2"_s, u"|2|9"_s},
    };
    for (const auto &[name, description, price, hostName, hostPrice, after] : cases) {
        SCOPED_TRACE(name);
        kitchen.execute(u"DELETE FROM Item; DELETE FROM Items"_s);
        addItem(1, u"7"_s);
        kitchen.execute(u"UPDATE Item SET ItemDescription = %1, UnitPrice = %2"_s, description, price);
        addHostItem(7, hostName, hostPrice);
        const bool changed = after.endsWith(u"|1"_s);
        EXPECT_EQ(run().updated, changed ? 1 : 0);
        EXPECT_EQ(kitchen.rows(u"SELECT ItemDescription, UnitPrice, ItemTypeID FROM Item"_s), QStringList(after));
        EXPECT_EQ(run().updated, 0);
    }
}

TEST_P(ItemSyncTest, WhatAnotherProgramHasWrittenIsTakenAsFarAsItFits)
{
    replaceTable(u"Items"_s,
                 u"Item_ID BIGINT, Meal_Item VARCHAR(80), Billed_Amount DOUBLE PRECISION, Meal VARCHAR(10)"_s);
    const QString emoji = QString::fromUcs4(U"\U0001F35E");
    addHostItem(1, u'\'' + emoji.repeated(60) + u'\'', u"1.00004"_s, u"'MFX'"_s);
    addHostItem(2, u"NULL"_s, u"NULL"_s);
    addHostItem(2, u"'the same again'"_s);
    kitchen.execute(u"INSERT INTO Items (Meal_Item) VALUES ('without a key'); "
                    "INSERT INTO Items (Item_ID) VALUES (9223372036854775807)"_s);
    EXPECT_EQ(run().added, 3);
    EXPECT_EQ(kitchen.rows(u"SELECT ItemDescription, UnitPrice, ItemTypeID FROM Item ORDER BY ItemID"_s).first(2),
              (QStringList{emoji.repeated(40) + u"|1|3"_s, u"|0|1"_s}));
    EXPECT_EQ(run().added, 0);

    addHostItem(3, u"'Gold'"_s, u"1e300"_s);
    EXPECT_TRUE(refusalOf([this] { run(); }).contains(u"item 3 "_s));
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM Item"_s), 3);
}

TEST_P(ItemSyncTest, AFailingUpdateIsPassedOverAndAMissingCounterBegun)
{
    kitchen.execute(u"DELETE FROM ItemCtl"_s);
    addItem(1, u"7"_s);
    addHostItem(7, u"'new'"_s);
    addHostItem(8, u"'Soup'"_s);
    {
        const BrokenTable broken(kitchen, u"UPDATE"_s, u"Item"_s, u"NEW.ItemID = 1"_s);
        const HostSyncResult result = run();
        EXPECT_EQ(result.added, 1);
        EXPECT_TRUE(has(result.notUpdated, u"no luck"_s));
    }
    EXPECT_EQ(keysAndNumbers(), u"1|7 10000|8");
    EXPECT_EQ(nextItemID(), u"10002");
    EXPECT_EQ(of(u"ItemDescription"_s, 1), u"old");
}

TEST_P(ItemSyncTest, AFailingInsertKeepsTheItemsBeforeIt)
{
    for (const int id : {7, 8, 9})
        addHostItem(id, u"'Meal'"_s);
    addItem(11, u"X"_s); // the counter is behind its table
    EXPECT_TRUE(fails([this] { run(); }, ErrorCode::KeyViolation, u"Item 8 \"Meal\""_s));
    EXPECT_EQ(keysAndNumbers(), u"10|7 11|X");
    EXPECT_EQ(nextItemID(), u"14");
    run();
    EXPECT_EQ(keysAndNumbers(), u"10|7 11|X 14|8 15|9");
}

TEST_P(ItemSyncTest, WithoutAReservationKeysLieAboveAllOthers)
{
    addHostItem(7, u"'Meal'"_s);
    addHostItem(8, u"'Meal'"_s);
    addItem(50, u"X"_s);
    TheirTable counters(kitchen, u"ItemCtl"_s);
    progress.onStart = [&] { counters.close(); }; // once the keys are to be reserved, and before the first row
    run();
    EXPECT_EQ(keysAndNumbers(), u"50|X 51|7 52|8");
    EXPECT_EQ(nextItemID(), u"54") << "none of them is handed out again";
}

// As the posting of receipts holds it.
TEST_P(ItemSyncTest, WhoHoldsTheItemsKeepsEverythingAsItIs)
{
    addItem(1, u"7"_s);
    addHostItem(7, u"'new'"_s);
    addHostItem(8, u"'Soup'"_s);
    TheirTable table(kitchen, u"Item"_s);
    for (const bool whole : {true, false}) {
        std::optional<Engine::TableLocks> lock;
        whole ? lock.emplace(table.database()).take(table.name()) : table.edit();
        EXPECT_EQ(errorOf([this] { run(); }), ErrorCode::TableLocked);
        table.cancel();
    }
    EXPECT_EQ(keysAndNumbers(), u"1|7");
    EXPECT_EQ(of(u"ItemDescription"_s, 1), u"old");
    EXPECT_EQ(nextItemID(), u"10");
    EXPECT_EQ(run().added, 1);
}

struct LocationSyncTest : HostSyncTest
{
    HostSyncResult run() { return LocationSync(kitchen.database()).run(progress); }
    QString locations()
    {
        return kitchen.found(u"SELECT WarehouseID, WarehouseName, Location_ID FROM Warehse ORDER BY WarehouseID"_s);
    }
};
ON_BOTH_STORES(LocationSyncTest);

TEST_P(LocationSyncTest, PlacesBecomeLocationsAboveTheHighestKeyAndRenameThem)
{
    kitchen.execute(u"INSERT INTO Locatns (Location_ID, Location) VALUES (8, 'East'), (9, 'West'), (7, 'South')"_s);
    EXPECT_EQ(run().added, 3);
    EXPECT_EQ(locations(), u"1|Office| 2|Freezer| 3|South|7 4|East|8 5|West|9");
    EXPECT_EQ(progress.steps, 3);
    EXPECT_TRUE(progress.finished);

    kitchen.execute(u"UPDATE Locatns SET Location = 'Far south' WHERE Location_ID = 7; "
                    "DELETE FROM Locatns WHERE Location_ID = 8; "
                    "UPDATE Warehse SET WarehouseName = 'Mine' WHERE Location_ID = 9"_s);
    const HostSyncResult result = run();
    EXPECT_EQ(locations(), u"1|Office| 2|Freezer| 3|Far south|7 4|East|8 5|West|9");
    EXPECT_EQ(result.added, 0);
    EXPECT_EQ(result.updated, 2);
    EXPECT_EQ(run().updated, 0);
    kitchen.execute(u"DELETE FROM Warehse"_s);
    run();
    EXPECT_EQ(locations(), u"1|Far south|7 2|West|9");
}

TEST_P(LocationSyncTest, NamesComeAsTheyAreAndFitTheirField)
{
    const QString quoted = u"O'Brien \"100%\" [a];--"_s;
    const QString emoji = QString::fromUcs4(U"\U0001F35E");
    replaceTable(u"Locatns"_s, u"Location_ID INTEGER, Location VARCHAR(80)"_s);
    kitchen.execute(
        u"INSERT INTO Locatns (Location_ID, Location) VALUES (7, '%1'), (8, '%2'), (9, NULL), (8, 'the same "
        "again'), (NULL, 'nowhere'); DELETE FROM Warehse"_s,
        QString(quoted).replace(u'\'', u"''"_s), emoji.repeated(60));
    EXPECT_EQ(run().added, 3);
    kitchen.execute(u"DELETE FROM Locatns WHERE Location = 'the same again'"_s);
    for (const bool renamed : {false, true}) {
        EXPECT_EQ(run().updated, renamed ? 3 : 0);
        EXPECT_EQ(locations(), u"1|%1|7 2|%2|8 3||9"_s.arg(quoted, emoji.repeated(50)));
        kitchen.execute(u"UPDATE Warehse SET WarehouseName = 'old'"_s);
    }
}

TEST_P(LocationSyncTest, NumbersThatAreUsedUpAreNoOverflow)
{
    kitchen.execute(u"INSERT INTO Locatns (Location_ID, Location) VALUES (7, 'A'), (8, 'B'); "
                    "INSERT INTO Warehse (WarehouseID) VALUES (2147483646)"_s);
    EXPECT_EQ(errorOf([this] { run(); }), ErrorCode::BadValue);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM Warehse"_s), 3);
}

} // namespace
