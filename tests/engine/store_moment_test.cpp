#include "engine/records/rowwalk.h"
#include "engine/records/table.h"
#include "engine/store/readmoment.h"
#include "tests/engine/storetest.h"

using namespace Qt::StringLiterals;
using namespace Engine;

namespace {

// More rows than are fetched at once.
struct Moments : StoreTest
{
    static constexpr int rows = 600;

    void SetUp() override
    {
        database.createTable(everyType());
        store.fill(u"Sample (SampleID, Quantity, Posted)"_s, u"i, 1, i % 2 = 0"_s, rows);
    }

    std::unique_ptr<TestUser> anna = store.anotherUser();
};
ON_BOTH_STORES(Moments);

const auto total = u"SELECT count(*), sum(Quantity) FROM Sample"_s;
const auto change = u"UPDATE Sample SET Quantity = 2; DELETE FROM Sample WHERE SampleID = 1"_s;

TEST_P(Moments, ShowWhatTheStoreHeldThenAndTakeNoWrites)
{
    ReadMoment moment(database);
    EXPECT_FALSE(moment.keepsWritersOut());
    anna->execute(change);
    database.change([&] { store.execute(u"UPDATE Sample SET Quantity = 3"_s); });

    EXPECT_EQ(rowsOf(moment.database(), total), QStringList{u"600|600"_s});
    EXPECT_EQ(rowsOf(moment.database(), u"SELECT Quantity FROM Sample WHERE SampleID = 1"_s), QStringList{u"1"_s});
    EXPECT_EQ(errorOf([&] { moment.database().connection().execute(change); }), ErrorCode::ReadOnly);
    EXPECT_EQ(rowsOf(ReadMoment(database).database(), total), QStringList{u"599|1797"_s});
}

TEST_P(Moments, AWalkGivesTheSetAsItStandsThen)
{
    Table table(database, u"Sample"_s);
    table.setFilter(u"Posted = true"_s);
    table.setFiltered(true);
    table.addCalculated({u"Twice"_s, FieldType::Float},
                        [](const DataSet &row) { return Value(2 * row.number(u"Quantity")); });
    table.open();
    table.moveTo(table.recordCount() - 1);
    anna->execute(u"INSERT INTO Sample (SampleID, Quantity, Posted) VALUES (1000, 1, true)"_s);

    ReadMoment moment(database);
    RowWalk walk(table, moment);
    anna->execute(change);
    EXPECT_EQ(walk.count(), rows / 2 + 1);
    QList<qint64> keys;
    double sum = 0;
    for (Row row; walk.next(row);) {
        keys << row[0].toInt64();
        sum += table.valueIn(row, table.fieldIndex(u"Twice")).toDouble();
    }
    moment.end();
    EXPECT_EQ(keys.first(), 2);
    EXPECT_EQ(keys.last(), 1000);
    EXPECT_EQ(sum, rows + 2);
    EXPECT_EQ(table.recordCount(), rows / 2) << "the list in hand stays as it was read";
    EXPECT_EQ(table.integer(u"SampleID"), rows);
}

TEST(RemoteMoments, ALostConnectionIsNotReplacedByALaterMoment)
{
    TestStore store(Store::Remote);
    store.database().createTable(everyType());
    const auto anna = store.anotherUser();
    ReadMoment moment(anna->database);
    TestUser(store.place()).endOtherSessions(u"anna"_s);
    for (int attempt = 0; attempt < 2; ++attempt)
        EXPECT_EQ(errorOf([&] { rowsOf(moment.database(), total); }), ErrorCode::ConnectionLost);
    EXPECT_EQ(errorOf([&] { moment.end(); }), ErrorCode::ConnectionLost);
    EXPECT_EQ(rowsOf(ReadMoment(anna->database).database(), total).size(), 1);
}

} // namespace
