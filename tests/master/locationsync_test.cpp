#include "master/locationsync.h"

#include "engine/table.h"
#include "tests/master/hostkitchen.h"
#include "tests/support/brokentable.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::ErrorCode;

namespace {

class LocationSyncTest : public testing::TestWithParam<Store>
{
protected:
    HostSyncResult run() { return LocationSync(kitchen.database()).run(progress); }
    QString locations()
    {
        return kitchen.rows(u"SELECT WarehouseID, WarehouseName, Location_ID FROM Warehse ORDER BY WarehouseID"_s)
            .join(u' ');
    }

    HostKitchen kitchen{GetParam()};
    CountedProgress progress;
};
ON_BOTH_STORES(LocationSyncTest);

TEST_P(LocationSyncTest, PlacesBecomeLocationsAboveTheHighestKey)
{
    kitchen.execute(u"INSERT INTO Locatns (Location_ID, Location) VALUES (30, 'North'), (7, 'South')"_s);
    const HostSyncResult result = run();
    EXPECT_EQ(locations(), u"1|Office| 2|Freezer| 3|South|7 4|North|30");
    EXPECT_EQ(result.added, 2);
    EXPECT_EQ(progress.steps, 2);
    EXPECT_TRUE(progress.finished);

    kitchen.execute(u"DELETE FROM Warehse"_s);
    run();
    EXPECT_EQ(locations(), u"1|South|7 2|North|30");
}

TEST_P(LocationSyncTest, ASecondRunAddsNothingAndRenames)
{
    kitchen.execute(u"INSERT INTO Locatns (Location_ID, Location) VALUES (7, 'South'), (8, 'East'), (9, 'West')"_s);
    run();
    kitchen.execute(u"UPDATE Locatns SET Location = 'Far south' WHERE Location_ID = 7; "
                    "DELETE FROM Locatns WHERE Location_ID = 8; "
                    "UPDATE Warehse SET WarehouseName = 'Mine' WHERE Location_ID = 9"_s);
    const HostSyncResult result = run();
    EXPECT_EQ(locations(), u"1|Office| 2|Freezer| 3|Far south|7 4|East|8 5|West|9");
    EXPECT_EQ(result.added, 0);
    EXPECT_EQ(result.updated, 2);
    EXPECT_EQ(run().updated, 0);
}

TEST_P(LocationSyncTest, NamesComeAsTheyAreAndFitTheirField)
{
    const QString quoted = u"O'Brien \"100%\" [a];--"_s;
    const QString emoji = QString::fromUcs4(U"\U0001F35E");
    kitchen.replaceTable(u"Locatns"_s, u"Location_ID INTEGER, Location VARCHAR(80)"_s);
    kitchen.execute(u"INSERT INTO Locatns (Location_ID, Location) VALUES (7, '%1'), (8, '%2'), (9, NULL), "
                    "(8, 'the same again'), (NULL, 'nowhere'); DELETE FROM Warehse"_s.arg(
                        QString(quoted).replace(u'\'', u"''"_s), emoji.repeated(60)));
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
