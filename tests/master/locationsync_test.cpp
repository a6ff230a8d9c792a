#include "master/locationsync.h"

#include "engine/table.h"
#include "tests/master/hostkitchen.h"
#include "tests/support/brokentable.h"
#include "tests/support/failures.h"

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
    const QString emoji = QString::fromUcs4(U"\U0001F35E");
    const std::pair<QString, QString> names[] = {
        {u"O'Brien \"100%\" [a];--"_s, u"O'Brien \"100%\" [a];--"_s},
        {emoji.repeated(60), emoji.repeated(50)},
        {QString(), QString()},
    };
    kitchen.replaceTable(u"Locatns"_s, u"Location_ID INTEGER, Location VARCHAR(80)"_s);
    const Engine::StatementPtr insert =
        kitchen.database().connection().prepare(u"INSERT INTO Locatns (Location_ID, Location) VALUES (?, ?)"_s);
    const auto add = [&](qint64 id, const QString &name) {
        insert->bindInt(0, id);
        name.isNull() ? insert->bindNull(1) : insert->bindText(1, name);
        insert->execute();
    };
    qint64 id = 0;
    for (const auto &[name, kept] : names)
        add(++id, name);
    add(2, u"the same again"_s);
    kitchen.execute(u"INSERT INTO Locatns (Location) VALUES ('nowhere')"_s);

    EXPECT_EQ(run().added, 3);
    for (const QString &round : {u"added"_s, u"renamed"_s}) {
        SCOPED_TRACE(round.toStdString());
        id = 0;
        for (const auto &[name, kept] : names)
            EXPECT_EQ(kitchen.text(u"SELECT WarehouseName FROM Warehse WHERE Location_ID = %1"_s.arg(++id)), kept);
        kitchen.execute(u"DELETE FROM Locatns WHERE Location = 'the same again'; "
                        "UPDATE Warehse SET WarehouseName = 'old' WHERE Location_ID > 0"_s);
        EXPECT_EQ(run().updated, 3);
    }
    EXPECT_EQ(run().updated, 0);
}

TEST_P(LocationSyncTest, NumbersThatAreUsedUpAreNoOverflow)
{
    kitchen.execute(u"INSERT INTO Locatns (Location_ID, Location) VALUES (7, 'A'), (8, 'B'); "
                    "INSERT INTO Warehse (WarehouseID) VALUES (2147483646)"_s);
    EXPECT_EQ(errorOf([this] { run(); }), ErrorCode::BadValue);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM Warehse"_s), 3);
}

} // namespace
