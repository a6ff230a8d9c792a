#include "tests/cli/clirunner.h"

using namespace Qt::StringLiterals;

namespace {

class Sync : public testing::TestWithParam<Store>
{
protected:
    Sync()
    {
        makeSmallCompany(cli);
        host("INSERT INTO Locatns (Location_ID, Location) VALUES (7, 'North \"1\"'), (8, 'South, upper')");
        host("INSERT INTO Items (Item_ID, Meal_Item, Billed_Amount, Meal) VALUES (5, 'Soup', 1.5, 'L')");
    }
    void host(const char *sql) { cli.anotherUser()->database.connection().execute(QString::fromUtf8(sql)); }
    QString run(const QString &kind)
    {
        const CliResult result = cli.run({u"sync"_s, kind});
        EXPECT_EQ(result.status, 0) << result;
        EXPECT_EQ(result.errors, QString());
        return result.output.trimmed();
    }

    CliRunner cli{GetParam()};
};
ON_BOTH_STORES(Sync);

TEST_P(Sync, BringsOverWhatTheHostHas)
{
    EXPECT_EQ(run(u"locations"_s), u"2 location(s) added, 0 renamed");
    EXPECT_EQ(cli.column({u"list"_s, u"locations"_s}, u"WarehouseName"_s),
              (QStringList{u"North \"1\""_s, u"Office"_s, u"South, upper"_s}));
    EXPECT_EQ(run(u"items"_s), u"1 item(s) added, 0 updated");
    host("UPDATE Items SET Billed_Amount = 2");
    EXPECT_EQ(run(u"items"_s), u"0 item(s) added, 1 updated");
    EXPECT_EQ(cli.column({u"list"_s, u"items"_s, u"--filter"_s, u"(ItemNo = '5')"_s}, u"UnitPrice"_s),
              QStringList(u"2"_s));
    host("UPDATE Locatns SET Location = 'N' WHERE Location_ID = 7");
    EXPECT_EQ(run(u"locations"_s), u"0 location(s) added, 1 renamed");
}

} // namespace
