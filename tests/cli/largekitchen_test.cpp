#include "care/bookcheck.h"
#include "host/sample/samplekitchen.h"
#include "host/tables/hosttables.h"
#include "tests/support/bothstores.h"
#include "tests/support/dataplace.h"
#include "tests/support/spokenprompts.h"

using namespace Qt::StringLiterals;

namespace {

// The books of a large kitchen, only smaller.
QStringList booksOf(Store store, std::uint64_t seed)
{
    TestStore place(store);
    Tallymere::MemorySettings settings;
    SpokenPrompts prompts;
    Tallymere::DataModuleOptions options = placeOf(place);
    options.prepareHost = [](Engine::Database &database) {
        Tallymere::HostTables::createHostTables(database, u"Kitchen"_s, u"USA"_s);
    };
    Tallymere::TDataModuleTallymere data(settings, prompts, options);
    CountedProgress progress;
    Tallymere::fillLargeKitchen(data, seed, progress, {.items = 700, .historyRows = 20'000});
    Tallymere::checkBooks(data.databaseTallymere(), progress, [](const Tallymere::BookCheck &check, auto &&) {
        ADD_FAILURE() << check.title.toStdString();
    });
    EXPECT_EQ(place.found(u"SELECT count(*) FROM Item"_s), u"700"_s);
    EXPECT_EQ(
        place.found(u"SELECT count(*) FROM Item WHERE ItemID IN (SELECT ItemID FROM IBalance WHERE QtyOnHand > 0) "
                    "AND coalesce(WgtAvgCost, 0) <= 0"_s),
        u"0"_s);
    return place.rows(u"SELECT ItemID, WarehouseID, GLYear, GLPeriod, TransType, Quantity, UnitCost, "
                      "TransDescription, ReceiptID, UsageID, AdjustmentID FROM IHist ORDER BY IHistID"_s)
        + place.rows(u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance ORDER BY ItemID, WarehouseID"_s);
}

TEST(LargeKitchenSeed, TheSameSeedGivesTheSameRowsInBothStoresAndAnotherGivesOthers)
{
    const QStringList books = booksOf(Store::Local, 7);
    EXPECT_GT(books.size(), 20'000);
    EXPECT_TRUE(books == booksOf(Store::Remote, 7));
    EXPECT_FALSE(books == booksOf(Store::Local, 8));
}

} // namespace
