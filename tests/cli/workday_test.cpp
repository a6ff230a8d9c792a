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
    const auto column = [&](const Words &words, const QString &field) {
        return cli.column(words, field).join(u' ');
    };
    EXPECT_EQ(cli.list("totals").size(), 0) << "nothing is in stock before posting";

    EXPECT_EQ(cli.output("post receipts"), u"2 receipts posted\n"_s);
    EXPECT_EQ(cli.output("post receipts"), u"0 receipt(s) to be posted\n"_s);

    EXPECT_EQ(cli.output("totals --csv").remove(u'\r'),
              u"ItemID,WarehouseID,ItemNo,ItemDescription,WarehouseName,QtyOnHand\n10000,2,A1,Apples,Cold Room,5\n"
              "10000,1,A1,Apples,Office,10\n10001,1,B2,\"Beans, dried\",Office,4\n"_s);
    EXPECT_EQ(column("totals --filter \"(WarehouseID = 2)\"", u"QtyOnHand"_s), u"5"_s);
    // 10 at 2.00, then 5 at 2.00 euros of 1.50: 35.00 for 15.
    EXPECT_EQ(column("list items --filter \"(ItemNo = 'A1')\"", u"WgtAvgCost"_s), u"2.33"_s);

    EXPECT_EQ(column("cost A1", u"AverageAfter"_s), u"2 2.33 2.33"_s);
    EXPECT_EQ(cli.errors("cost A"), u"tallymere: There is no item 'A'\n"_s);
    EXPECT_EQ(column("totals --as-of 2026-11-02", u"QtyOnHand"_s), u"0 10 4"_s);
    EXPECT_EQ(column("totals --period 10 --year 26", u"QtyOnHand"_s), u"0 0 0"_s);

    EXPECT_EQ(column("history", u"WarehouseName"_s), u"Cold Room Office Office"_s);
    EXPECT_EQ(column("history", u"TransTypeName"_s), u"PO Receipt PO Receipt PO Receipt"_s);

    const CliResult used = cli.import(u"usage"_s,
                                      "UsageNo,WarehouseName,ItemNo,Quantity,UnitCost\n"
                                      "U1,Office,A1,3,\nU1,Office,B2,0.5,9\n,Cold Room,A1,2,\n");
    EXPECT_EQ(used.output, u"2 usage imported\n"_s) << used;
    EXPECT_EQ(column("list usage", u"UsageNo"_s), u"U1 10001"_s);
    EXPECT_EQ(cli.output("post usage"), u"2 usage records posted\n"_s);
    EXPECT_EQ(column("totals", u"QtyOnHand"_s), u"3 7 3.5"_s);
    cli.execute(u"INSERT INTO History (Event, \"user\", Tran_Date, Event_Date) VALUES "
                "('Repaired: a cost', 'anna', '2026-11-03 14:05:00', '2026-11-02')"_s);
    EXPECT_TRUE(has(cli.output("list audit"), u"\n2026-11-03,14:05,Repaired: a cost,anna,2026-11-02"_s));
    const auto buy = cli.list("buy --location 2 --weeks 1");
    ASSERT_EQ(buy.size(), 1);
    EXPECT_EQ(buy[0][u"VendorNo"_s] + u' ' + buy[0][u"Proposed"_s] + u' ' + buy[0][u"LastCost"_s], u"V2 1 3"_s);

    cli.execute(u"INSERT INTO Locatns (Location_ID, Location) VALUES (7, 'North'); "
                "INSERT INTO Items (Item_ID, Meal_Item, Billed_Amount, Meal) VALUES (5, 'Soup', 1.5, 'L')"_s);
    EXPECT_EQ(cli.output("sync locations"), u"1 location added, 0 renamed\n"_s);
    EXPECT_EQ(cli.output("sync items"), u"1 item added, 0 updated\n"_s);
    cli.execute(u"UPDATE Items SET Billed_Amount = 2"_s);
    EXPECT_EQ(cli.output("sync items"), u"0 items added, 1 updated\n"_s);
    EXPECT_EQ(column("list items --filter \"(ItemNo = '5')\"", u"UnitPrice"_s), u"2"_s);
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
    const CliResult init = cli.runBare("init", environment);
    ASSERT_EQ(init.status, 0) << init;
    EXPECT_EQ(QFile::exists(cli.folder() + "/kitchen/Corvane.sqlite"_L1), local);
    EXPECT_TRUE(has(cli.runBare("list locations", environment).output, u"\n1,Office,"_s));
}

TEST_P(Workday, TheSampleKitchenGoesIntoANewDatabaseOnly)
{
    CliRunner cli(GetParam());
    cli.output("sample");
    for (const QString &kind : {u"receipts"_s, u"usage"_s, u"adjustments"_s})
        EXPECT_GT(cli.list({u"list"_s, kind, u"--filter"_s, u"(Posted = false)"_s}).size(), 0);

    EXPECT_GT(cli.list("totals").size(), 150);
    const QStringList taxes = cli.column("list taxes", u"TaxCode"_s);
    const QStringList items = cli.column("list items", u"TaxCodes"_s);
    EXPECT_GE(items.size(), 150);
    for (const QString &codes : items)
        for (const QChar code : codes)
            ASSERT_TRUE(taxes.contains(code)) << code.toLatin1();
    EXPECT_TRUE(has(cli.errors("sample"), u"table 'Item' holds rows already"_s));
}

// The file as the first release has left it, with a posted receipt and an open one.
TEST(Moving, BooksGoIntoANewFolderAndAreTakenUpAgain)
{
    CliRunner cli(Store::Local);
    makeSmallCompany(cli);
    const QTemporaryDir place;
    const QString there = place.filePath(u"new/books"_s);
    const auto run = [&cli](const QStringList &words) {
        const CliResult result = cli.runBare(words);
        return QString::number(result.status) + u' ' + result.output + result.errors;
    };
    const QStringList from{u"copy"_s, u"--from"_s, cli.folder()};
    const auto with = [&from](const QStringList &more) { return from + more; };
    EXPECT_TRUE(has(run(from), u"2 tallymere: 'copy' needs a folder or the address of a server after --to"_s));
    EXPECT_TRUE(has(run(with({u"--data"_s, there})), u"in place of --data"_s));
    EXPECT_TRUE(has(run(with({u"--take-up"_s, u"--to"_s, there})), u"--take-up goes with --from alone"_s));

    const QString moved = run(with({u"--to"_s, there, u"--move"_s}));
    EXPECT_TRUE(moved.startsWith(u"0 "_s) && has(moved, u"have moved from"_s)) << qPrintable(moved);
    const auto items = [&run](const QString &folder) { return run({u"--data"_s, folder, u"list"_s, u"items"_s}); };
    EXPECT_TRUE(items(cli.folder()).startsWith(items(there)))
        << "behind the rows it says where the books have gone";
    EXPECT_TRUE(has(cli.import(u"locations"_s, "WarehouseName\nHall\n").errors, there));
    EXPECT_TRUE(has(run(with({u"--take-up"_s})), u"taken up again"_s));
    EXPECT_EQ(cli.import(u"locations"_s, "WarehouseName\nHall\n").status, 0);
    EXPECT_TRUE(has(run(with({u"--to"_s, place.filePath(u"copy"_s)})), u"which has been verified"_s));
}

TEST(FormerRelease, ItsDatabaseOpensAndWorks)
{
    CliRunner cli(Store::Local);
    const QString unpack = u"gunzip -c \"$0\" > \"$1\""_s;
    ASSERT_EQ(QProcess::execute(
                  u"sh"_s, {u"-c"_s, unpack, QStringLiteral(FORMER_DATABASE), cli.folder() + "/Corvane.sqlite"_L1}),
              0);
    EXPECT_EQ(cli.column("totals", u"QtyOnHand"_s), (QStringList{u"10"_s, u"4"_s}));
    EXPECT_EQ(cli.column("list vendors", u"VendorName"_s), QStringList{u"Küche & Söhne"_s});
    ASSERT_EQ(cli.import(u"items"_s, "ItemDescription,TypeName\nPears,Produce\n").status, 0);
    EXPECT_EQ(cli.output("post receipts"), u"1 receipt posted\n"_s);
    EXPECT_EQ(cli.column("totals", u"QtyOnHand"_s), (QStringList{u"20"_s, u"8"_s}));
    EXPECT_EQ(cli.list("history").size(), 4);
    EXPECT_EQ(cli.run("init").status, 0) << "its tables are as they should be, or become so";
}

} // namespace
