#include "tests/cli/clirunner.h"
#include "tests/support/otheruser.h"

using namespace Qt::StringLiterals;

namespace {

struct CountCommand : testing::TestWithParam<Store>
{
    CountCommand()
    {
        makeSmallCompany(cli);
        cli.execute(u"UPDATE ItemType SET Inventory = true, CostingMethod = 2; UPDATE Item SET StandardCost = 2; "
                    "UPDATE Item SET Suspended = false WHERE Suspended IS NULL; "
                    "INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) "
                    "SELECT ItemID, WarehouseID, 10 FROM Item, Warehse WHERE ItemNo = 'A1'"_s);
    }
    static QString date(int days = 0) { return QDate::currentDate().addDays(days).toString(Qt::ISODate); }
    QStringList words(const QByteArray &csv)
    {
        return {u"count"_s,
                u"--location"_s,
                u"1"_s,
                u"--date"_s,
                date(),
                u"--file"_s,
                cli.writeFile(u"count.csv"_s, csv)};
    }
    CliResult count(const QByteArray &csv, const QStringList &more = {}) { return cli.run(words(csv) + more); }

    CliRunner cli{GetParam()};
};
ON_BOTH_STORES(CountCommand);

TEST_P(CountCommand, WritesAUsageOfWhatDiffers)
{
    const CliResult equal = count("ItemNo,Quantity\nA1,10\n");
    EXPECT_EQ(equal.status, 0) << equal;
    EXPECT_EQ(equal.output.trimmed(), u"no usage to be written"_s);

    cli.execute(u"UPDATE Item SET StandardCost = 0 WHERE ItemNo = 'B2'"_s);
    const CliResult written = count("Quantity,ItemNo\n7.5,a1\n3,B2\n", {u"--include-zero"_s});
    EXPECT_EQ(written.status, 0) << written;
    EXPECT_TRUE(written.output.contains("written, 2 lines"_L1)) << written;
    EXPECT_TRUE(written.errors.contains("Beans, dried, Item ID: "_L1)) << written;
    const auto usages = cli.list({u"list"_s, u"usage"_s});
    ASSERT_EQ(usages.size(), 1);
    EXPECT_EQ(usages[0][u"Posted"_s], u"false"_s);
    EXPECT_EQ(usages[0][u"InventoryDate"_s], date());
}

TEST_P(CountCommand, LargeQuantitiesNeedAYesAndAbsurdOnesAreRefused)
{
    for (const QStringList &more : {QStringList(), QStringList(u"--yes"_s)}) {
        const CliResult absurd = count("ItemNo,Quantity\nA1,1e308\n", more);
        EXPECT_EQ(absurd.status, 1);
        EXPECT_TRUE(absurd.errors.startsWith("count.csv:2: A quantity of 100,000,000,000,000,000,000,000,"_L1))
            << absurd;
    }
    const CliResult large = count("ItemNo,Quantity\nA1,1000000\n");
    EXPECT_EQ(large.status, 1);
    EXPECT_TRUE(large.errors.startsWith("count.csv:2: A1: The quantity is 1,000,000. "_L1)) << large;
    EXPECT_EQ(count("ItemNo,Quantity\nA1,1000000\n", {u"--yes"_s}).status, 0);
}

TEST_P(CountCommand, RefusesWhatItCannotTake)
{
    cli.execute(u"INSERT INTO Item (ItemID, ItemNo, Suspended) VALUES (90, 'E5', false)"_s);
    const CliResult refused = count("ItemNo,Quantity\nA1,-1\nA1,\nB2,2\nC3,1\n,1\nA1,2\nA1,3\nA1,x\nD4,1\nE5,1\n");
    EXPECT_EQ(refused.status, 1);
    const QStringList messages = {
        u"2: A quantity that has been counted cannot be below zero"_s,
        u"3: A quantity is needed for the item 'A1'"_s,
        u"4: The item 'B2' is not among those that are counted at this location"_s,
        u"5: The item 'C3' has been suspended and is not counted"_s,
        u"6: An item number is needed"_s,
        u"8: The item 'A1' has been counted in an earlier row"_s,
        u"9: Quantity 'x' is not a number"_s,
        u"10: The item 'D4' was not found"_s,
        u"11: The item 'E5' is of a type without inventory and is not counted"_s,
    };
    EXPECT_EQ(refused.errors,
              "count.csv:"_L1 + messages.join(u"\ncount.csv:"_s) + "\ntallymere: Nothing was counted.\n"_L1);

    const std::tuple<QStringList, int, QString> orders[] = {
        {{u"--location"_s, u"77"_s, u"--date"_s, date()}, 1, u"There is no location 77"_s},
        {{u"--location"_s, u"1"_s, u"--date"_s, date(-366)}, 1, u"less than 365 days"_s},
        {{u"--location"_s, u"1"_s, u"--date"_s, date(5)}, 1, u"cannot be later"_s},
        {{u"--location"_s, u"1"_s, u"--date"_s, u"14.3.26"_s}, 2, u"needs a date as YYYY-MM-DD"_s},
        {{u"--date"_s, u"2026-03-14"_s}, 2, u"needs the option '--location'"_s},
    };
    for (const auto &[words, status, message] : orders) {
        const CliResult result = cli.run(QStringList{u"count"_s, u"--file"_s, u"count.csv"_s} + words);
        EXPECT_EQ(result.status, status) << result;
        EXPECT_TRUE(result.errors.contains(message)) << result;
    }
    EXPECT_EQ(cli.list({u"list"_s, u"usage"_s}).size(), 0);
}

// However two counts of a location fall upon each other, the usage is written once.
TEST_P(CountCommand, TwoAtOnceWriteTheUsageOnce)
{
    const QStringList count = words("ItemNo,Quantity\nA1,4\n");
    const int races = timesByHand(4);
    int doubled = 0;
    for (int race = 0; race < races; ++race) {
        cli.execute(u"DELETE FROM IUsageDet; DELETE FROM IUsage"_s);
        const auto one = cli.start(count);
        const auto other = cli.start(count);
        const CliResult results[] = {cli.finish(*one), cli.finish(*other)};
        const auto written = rowsOf(cli.anotherUser()->database, u"SELECT UsageNo FROM IUsage"_s).size();
        doubled += written > 1 ? 1 : 0;
        EXPECT_EQ(written + results[0].status + results[1].status, 2) << results[0] << results[1];
    }
    EXPECT_EQ(doubled, 0) << "of " << races;
}

} // namespace
