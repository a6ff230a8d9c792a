#include "tests/cli/clirunner.h"
#include "tests/support/files.h"

using namespace Qt::StringLiterals;

namespace {

using Workday = testing::TestWithParam<Store>;

ON_BOTH_STORES(Workday);

TEST_P(Workday, FromAnEmptyFolderToTotals)
{
    CliRunner cli(GetParam());
    makeSmallCompany(cli);
    ASSERT_EQ(cli.import(u"locations"_s, "WarehouseName\nCold Room\n").status, 0);
    const CliResult imported = cli.import(u"receipts"_s,
                                          "VendorNo,WarehouseName,PurchaseOrderNo,ReceiptDate,GLYear,GLPeriod,"
                                          "ItemNo,QtyReceived,UnitCost\n"
                                          "V1,Office,P1,2026-11-02,26,11,A1,10,2\n"
                                          "V1,Office,P1,2026-11-02,26,11,B2,4,1.23456\n"
                                          "V2,Cold Room,,2026-11-03,2026,11,A1,5,2\n");
    EXPECT_EQ(imported.output, u"2 receipts imported\n"_s) << imported;
    EXPECT_EQ(cli.run({u"totals"_s}).rows().size(), 1); // nothing is in stock before posting

    const CliResult posted = cli.run({u"post"_s, u"receipts"_s});
    EXPECT_EQ(posted.status, 0) << posted;
    EXPECT_EQ(posted.output, u"2 receipts posted\n"_s);
    EXPECT_EQ(cli.run({u"post"_s, u"receipts"_s}).output, u"0 receipt(s) to be posted\n"_s);

    const QList<QStringList> totals = {
        {u"ItemID"_s, u"WarehouseID"_s, u"ItemNo"_s, u"ItemDescription"_s, u"WarehouseName"_s, u"QtyOnHand"_s},
        {u"10000"_s, u"2"_s, u"A1"_s, u"Apples"_s, u"Cold Room"_s, u"5"_s},
        {u"10000"_s, u"1"_s, u"A1"_s, u"Apples"_s, u"Office"_s, u"10"_s},
        {u"10001"_s, u"1"_s, u"B2"_s, u"Beans, dried"_s, u"Office"_s, u"4"_s},
    };
    EXPECT_EQ(cli.run({u"totals"_s, u"--csv"_s}).rows(), totals);
    EXPECT_EQ(cli.column({u"totals"_s, u"--filter"_s, u"(WarehouseID = 2)"_s}, u"QtyOnHand"_s),
              QStringList{u"5"_s});
    // 10 at 2.00, then 5 at 2.00 euros of 1.50: 35.00 for 15.
    EXPECT_EQ(cli.column({u"list"_s, u"items"_s, u"--filter"_s, u"(ItemNo = 'A1')"_s}, u"WgtAvgCost"_s),
              QStringList{u"2.33"_s});

    EXPECT_EQ(cli.column({u"cost"_s, u"A1"_s}, u"AverageAfter"_s), (QStringList{u"2"_s, u"2.33"_s, u"2.33"_s}));
    EXPECT_EQ(cli.run({u"cost"_s, u"A"_s}).errors, u"tallymere: There is no item 'A'\n"_s);
    EXPECT_EQ(cli.column({u"totals"_s, u"--as-of"_s, u"2026-11-02"_s}, u"QtyOnHand"_s),
              (QStringList{u"0"_s, u"10"_s, u"4"_s}));
    EXPECT_EQ(cli.column({u"totals"_s, u"--period"_s, u"10"_s, u"--year"_s, u"26"_s}, u"QtyOnHand"_s),
              (QStringList{u"0"_s, u"0"_s, u"0"_s}));

    const auto history = cli.list({u"history"_s, u"--filter"_s, u"(ItemID = 10000)"_s});
    ASSERT_EQ(history.size(), 2);
    QStringList latest;
    for (const QString &field :
         {u"Periodppyyyy"_s, u"WarehouseName"_s, u"UnitCost"_s, u"TransTypeName"_s, u"AdjustmentID"_s})
        latest << history[0][field];
    EXPECT_EQ(latest.join(u'|'), u"11/2026|Cold Room|3|PO Receipt|");
    EXPECT_EQ(history[1][u"TransDescription"_s], u"Receipt: 1001   PO: P1"_s);
    EXPECT_EQ(cli.column({u"history"_s, u"--filter"_s, u"(ItemID = 10001)"_s}, u"UnitCost"_s),
              QStringList{u"1.2346"_s});

    const CliResult used = cli.import(u"usage"_s,
                                      "UsageNo,WarehouseName,ItemNo,Quantity,UnitCost\n"
                                      "U1,Office,A1,3,\nU1,Office,B2,0.5,9\n,Cold Room,A1,2,\n");
    EXPECT_EQ(used.output, u"2 usage imported\n"_s) << used;
    EXPECT_EQ(cli.column({u"list"_s, u"usage"_s}, u"UsageNo"_s), (QStringList{u"U1"_s, u"10001"_s}));
    EXPECT_EQ(cli.run({u"post"_s, u"usage"_s}).output, u"2 usage records posted\n"_s);
    EXPECT_EQ(cli.column({u"totals"_s}, u"QtyOnHand"_s), (QStringList{u"3"_s, u"7"_s, u"3.5"_s}));
    EXPECT_EQ(cli.column({u"history"_s, u"--filter"_s, u"(TransType = 5)"_s}, u"UnitCost"_s),
              (QStringList{u"2.33"_s, u"9"_s, u"2.33"_s}));
    cli.execute(u"INSERT INTO History (Event, \"user\", Tran_Date, Event_Date) VALUES "
                "('Repaired: a cost', 'anna', '2026-11-03 14:05:00', '2026-11-02')"_s);
    EXPECT_EQ(cli.run({u"list"_s, u"audit"_s}).rows().value(1).join(u'|'),
              u"2026-11-03|14:05|Repaired: a cost|anna|2026-11-02"_s);
    const auto buy = cli.list({u"buy"_s, u"--location"_s, u"2"_s, u"--weeks"_s, u"1"_s});
    ASSERT_EQ(buy.size(), 1);
    EXPECT_EQ(buy[0][u"VendorNo"_s] + u' ' + buy[0][u"Proposed"_s] + u' ' + buy[0][u"LastCost"_s], u"V2 1 3"_s);

    cli.execute(u"INSERT INTO Locatns (Location_ID, Location) VALUES (7, 'North'); "
                "INSERT INTO Items (Item_ID, Meal_Item, Billed_Amount, Meal) VALUES (5, 'Soup', 1.5, 'L')"_s);
    EXPECT_EQ(cli.run({u"sync"_s, u"locations"_s}).output, u"1 location added, 0 renamed\n"_s);
    EXPECT_EQ(cli.run({u"sync"_s, u"items"_s}).output, u"1 item added, 0 updated\n"_s);
    cli.execute(u"UPDATE Items SET Billed_Amount = 2"_s);
    EXPECT_EQ(cli.run({u"sync"_s, u"items"_s}).output, u"0 items added, 1 updated\n"_s);
    EXPECT_EQ(cli.column({u"list"_s, u"items"_s, u"--filter"_s, u"(ItemNo = '5')"_s}, u"UnitPrice"_s),
              QStringList{u"2"_s});
}

TEST_P(Workday, WithoutAPlaceTheUsersSettingsDecide)
{
    CliRunner cli(GetParam());
    QTemporaryDir settings;
    const QByteArray alias = "[Alias]\nCorvane=" + (cli.folder() + "/kitchen"_L1).toUtf8() + '\n';
    const bool local = GetParam() == Store::Local;
    putContent(settings.filePath(u"DBIsam.conf"_s),
               alias + (local ? "[Mode]\nCorvane=F\n" : "[Mode]\nCorvane=C\n[Server%20IP]\nCorvane=127.0.0.1\n"));
    const QStringList environment = {"XDG_CONFIG_HOME="_L1 + settings.path()};
    const CliResult init = cli.runBare({u"init"_s}, environment);
    ASSERT_EQ(init.status, 0) << init;
    EXPECT_EQ(QFile::exists(cli.folder() + "/kitchen/Corvane.sqlite"_L1), local);
    const CliResult list = cli.runBare({u"list"_s, u"locations"_s}, environment);
    EXPECT_EQ(list.rows().value(1), (QStringList{u"1"_s, u"Office"_s, QString()}));
}

TEST_P(Workday, TheSampleKitchenGoesIntoANewDatabaseOnly)
{
    CliRunner cli(GetParam());
    const CliResult sample = cli.run({u"sample"_s});
    ASSERT_EQ(sample.status, 0) << sample;
    EXPECT_GE(cli.list({u"list"_s, u"items"_s}).size(), 150);
    for (const QString &kind : {u"receipts"_s, u"usage"_s, u"adjustments"_s})
        EXPECT_GT(cli.list({u"list"_s, kind, u"--filter"_s, u"(Posted = false)"_s}).size(), 0);

    EXPECT_GT(cli.list({u"totals"_s}).size(), 150);
    const QStringList taxes = cli.column({u"list"_s, u"taxes"_s}, u"TaxCode"_s);
    for (const QString &codes : cli.column({u"list"_s, u"items"_s}, u"TaxCodes"_s))
        for (const QChar code : codes)
            ASSERT_TRUE(taxes.contains(code)) << code.toLatin1();
    const CliResult again = cli.run({u"sample"_s});
    EXPECT_EQ(again.status, 1);
    EXPECT_TRUE(again.errors.contains("table 'Item' holds rows already"_L1)) << again;
}

// The file as the first release has left it, with a posted receipt and an open one.
TEST(FormerRelease, ItsDatabaseOpensAndWorks)
{
    CliRunner cli(Store::Local);
    const QString unpack = u"gunzip -c \"$0\" > \"$1\""_s;
    ASSERT_EQ(QProcess::execute(
                  u"sh"_s, {u"-c"_s, unpack, QStringLiteral(FORMER_DATABASE), cli.folder() + "/Corvane.sqlite"_L1}),
              0);
    EXPECT_EQ(cli.column({u"totals"_s}, u"QtyOnHand"_s), (QStringList{u"10"_s, u"4"_s}));
    EXPECT_EQ(cli.column({u"list"_s, u"vendors"_s}, u"VendorName"_s), QStringList{u"Küche & Söhne"_s});
    ASSERT_EQ(cli.import(u"items"_s, "ItemDescription,TypeName\nPears,Produce\n").status, 0);
    EXPECT_EQ(cli.run({u"post"_s, u"receipts"_s}).output, u"1 receipt posted\n"_s);
    EXPECT_EQ(cli.column({u"totals"_s}, u"QtyOnHand"_s), (QStringList{u"20"_s, u"8"_s}));
    EXPECT_EQ(cli.column({u"history"_s}, u"UnitCost"_s).size(), 4);
    EXPECT_EQ(cli.run({u"init"_s}).status, 0) << "its tables are as they should be, or become so";
}

} // namespace
