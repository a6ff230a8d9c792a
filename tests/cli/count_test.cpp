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
        return Words("count --location 1 --date") << date() << u"--file"_s << cli.writeFile(u"count.csv"_s, csv);
    }
    QString refusal(const QByteArray &csv, const QStringList &more = {}) { return cli.errors(words(csv) + more); }

    CliRunner cli{GetParam()};
};
ON_BOTH_STORES(CountCommand);

TEST_P(CountCommand, WritesAUsageOfWhatDiffers)
{
    EXPECT_EQ(cli.output(words("ItemNo,Quantity\nA1,10\n")).trimmed(), u"no usage to be written"_s);

    cli.execute(u"UPDATE Item SET StandardCost = 0 WHERE ItemNo = 'B2'"_s);
    const CliResult written = cli.run(words("Quantity,ItemNo\n7.5,a1\n3,B2\n") + Words("--include-zero"));
    EXPECT_EQ(written.status, 0) << written;
    EXPECT_TRUE(written.output.contains("written, 2 lines"_L1)) << written;
    EXPECT_TRUE(written.errors.contains("Beans, dried, Item ID: "_L1)) << written;
    const auto usages = cli.list("list usage");
    ASSERT_EQ(usages.size(), 1);
    EXPECT_EQ(usages[0][u"Posted"_s], u"false"_s);
    EXPECT_EQ(usages[0][u"InventoryDate"_s], date());
}

TEST_P(CountCommand, LargeQuantitiesNeedAYesAndAbsurdOnesAreRefused)
{
    for (const QStringList &more : {QStringList(), QStringList(u"--yes"_s)})
        EXPECT_TRUE(begins(refusal("ItemNo,Quantity\nA1,1e308\n", more),
                           u"count.csv:2: A quantity of 100,000,000,000,000,000,000,000,"_s));
    EXPECT_TRUE(
        begins(refusal("ItemNo,Quantity\nA1,1000000\n"), u"count.csv:2: A1: The quantity is 1,000,000. "_s));
    cli.output(words("ItemNo,Quantity\nA1,1000000\n") + Words("--yes"));
}

TEST_P(CountCommand, RefusesWhatItCannotTake)
{
    cli.execute(u"INSERT INTO Item (ItemID, ItemNo, Suspended) VALUES (90, 'E5', false)"_s);
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
    EXPECT_EQ(refusal("ItemNo,Quantity\nA1,-1\nA1,\nB2,2\nC3,1\n,1\nA1,2\nA1,3\nA1,x\nD4,1\nE5,1\n"),
              "count.csv:"_L1 + messages.join(u"\ncount.csv:"_s) + "\ntallymere: Nothing was counted.\n"_L1);

    const std::tuple<const char *, QString, int, QString> orders[] = {
        {"--location 77 --date", date(), 1, u"There is no location 77"_s},
        {"--location 1 --date", date(-366), 1, u"less than 365 days"_s},
        {"--location 1 --date", date(5), 1, u"cannot be later"_s},
        {"--location 1 --date", u"14.3.26"_s, 2, u"needs a date as YYYY-MM-DD"_s},
        {"--date", u"2026-03-14"_s, 2, u"needs the option '--location'"_s},
    };
    for (const auto &[words, day, status, message] : orders)
        EXPECT_TRUE(has(cli.errors(Words("count --file count.csv") + Words(words) + Words{day}, status), message));
    EXPECT_EQ(cli.list("list usage").size(), 0);
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
