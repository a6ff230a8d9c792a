#include "engine/store/tablelocks.h"
#include "master/masterkinds.h"
#include "tests/cli/clirunner.h"
#include "tests/support/files.h"
#include "transactions/documents/documentkinds.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const QByteArray receiptHeader = "ReceiptNo,ReceiptDate,GLYear,GLPeriod,VendorNo,WarehouseName,ItemNo,QtyReceived,"
                                 "UnitCost\n";

struct Import : testing::TestWithParam<Store>
{
    Import() { makeSmallCompany(cli); }
    QString counts()
    {
        QString all;
        QStringList tables;
        for (const MasterKind *kind : MasterKinds::all())
            tables << kind->table;
        for (const DocumentKind *kind : DocumentKinds::all())
            tables << kind->keyTables();
        for (const QString &table : tables)
            all += rowsOf(cli.anotherUser()->database, u"SELECT count(*) FROM "_s + table).join(u' ') + u' ';
        return all;
    }

    CliRunner cli{GetParam()};
    QTemporaryDir folder;
};

ON_BOTH_STORES(Import);

struct BadFile
{
    QString kind;
    QByteArray bytes;
    QStringList messages; // without "in.csv:"
};

const BadFile badFiles[] = {
    // the file as such
    {u"types"_s, "", {u"1: The file is empty."_s}},
    {u"types"_s, "TypeName\nGood\n\"Bad\n", {u"3: The quote that opens on this line never closes."_s}},
    {u"types"_s, "TypeName,Inventory\nGood\n", {u"2: The header has 2 fields, this row 1."_s}},
    // columns
    {u"types"_s, "Colour,TypeName\nred,A\n", {u"1: There is no column 'Colour' in types."_s}},
    {u"types"_s,
     "TypeName," + QByteArray(500, 'c') + "\nA,B\n",
     {u"1: There is no column '"_s + QString(57, u'c') + u"...' in types."_s}},
    {u"types"_s, "TypeName,typename\nA,A\n", {u"1: The column 'typename' is there twice."_s}},
    {u"types"_s, "Inventory\ntrue\n", {u"1: The column 'TypeName' is missing."_s}},
    {u"items"_s,
     "ItemID,ItemDescription,TypeName\n1,A,Produce\n",
     {u"1: The column 'ItemID' is set by the system and cannot be imported."_s}},
    {u"items"_s,
     "ItemDescription,TypeName,ItemTypeID\nA,Produce,1\n",
     {u"1: The columns 'TypeName' and 'ItemTypeID' say the same thing; leave one out."_s}},
    {u"receipts"_s,
     "VendorNo,Posted\nV1,true\n",
     {u"1: The column 'Posted' is set by the system and cannot be imported."_s,
      u"1: The column 'WarehouseID' or 'WarehouseName' is missing."_s,
      u"1: The column 'ItemID' or 'ItemNo' is missing."_s, u"1: The column 'QtyReceived' is missing."_s,
      u"1: The column 'UnitCost' is missing."_s}},
    // values
    {u"items"_s,
     "ItemDescription,TypeName,StandardCost,Suspended\n"
     "A,Produce,\"1,5\",\nB,Produce,inf,\nC,Produce,1e999,\nD,Produce,1e15,\nE,Produce,,yes\n"
     "12345678901234567890123456789012345678901,Produce,,\nG,Produce,1e-400,\nH,Produce,\x1B[2J,\n",
     {u"2: StandardCost '1,5' is not a number (the decimal sign is '.', as in 1234.5)"_s,
      u"3: StandardCost 'inf' is infinite"_s, u"4: StandardCost '1e999' is out of range"_s,
      u"5: StandardCost '1e15' is out of range"_s, u"6: Suspended 'yes' is neither true nor false"_s,
      u"7: ItemDescription '12345678901234567890123456789012345678901' is longer than 40 characters"_s,
      u"8: StandardCost '1e-400' is out of range"_s, u"9: StandardCost '\uFFFD[2J' is not a number"_s}},
    {u"items"_s,
     "ItemDescription,TypeName,Notes\nA,Produce," + QByteArray(1'000'001, 'x') + "\n",
     {u"2: Notes '"_s + QString(57, u'x') + u"...' is longer than 1,000,000 characters"_s}},
    {u"types"_s,
     "TypeName,CostingMethod\nA,3\nB,1.5\nC,40000\n",
     {u"2: CostingMethod '3' is not within 1 to 2"_s, u"3: CostingMethod '1.5' is not a whole number"_s,
      u"4: CostingMethod '40000' is out of range"_s}},
    // the rules of the screens
    {u"items"_s,
     "ItemNo,ItemDescription,TypeName\nA1,Again,Produce\nN1,New,Produce\nN1,Twice,Produce\nN2,,Produce\n"
     "N3,New,Dairy\n",
     {u"2: Item no. already exists"_s, u"4: Item no. already exists"_s,
      u"5: Field 'Description' must have a value"_s, u"6: Item type 'Dairy' not found"_s}},
    {u"vendors"_s, "VendorNo,VendorName,CurrencyName\nX2,Far,Yen\n", {u"2: Currency 'Yen' not found"_s}},
    {u"contacts"_s, "VendorNo,FirstName\nV9,Ann\n", {u"2: Vendor no. 'V9' not found"_s}},
    {u"receipts"_s,
     receiptHeader
         + "R3,,,,V1,Office,Z9,1,1\nR7,,,,V9,Office,A1,1,1\nR8,,,,V3,Office,A1,1,1\nR10,,,,V1,Attic,A1,1,1\n"
           "R11,,1999,1,V1,Office,A1,1,1\nR12,2026-02-30,,13,V1,Office,A1,1,1\nR13,,,,V1,Office,A1,1,1\n"
           "R14,,,,V1,Office,A1,1,1\nR13,,,,V1,Office,B2,1,1\n",
     {u"2: ItemNo 'Z9': Item not found... Press Esc or enter a different item no"_s,
      u"3: Vendor no. 'V9' not found"_s, u"4: Vendor no. 'V3' has been suspended"_s,
      u"5: Location 'Attic' not found"_s,
      u"6: GL Period is prior to current fiscal year as defined by \"Your Company\""_s,
      u"7: ReceiptDate '2026-02-30' is not a date (YYYY-MM-DD)"_s, u"7: GLPeriod '13' is not within 1 to 12"_s,
      u"10: Receipt no. already exists"_s}},
    {u"adjustments"_s,
     "AdjDescription,WarehouseName,ItemNo,Quantity\nBroken,Office,A1,1\nBroken,Office,A1,\n",
     {u"3: ItemNo 'A1': Field 'Quantity' must have a value... Make changes or press Esc to undo"_s}},
};

TEST_P(Import, ABadFileIsToldRowByRowAndNothingOfItIsWritten)
{
    const QString before = counts();
    for (const BadFile &file : badFiles) {
        SCOPED_TRACE(file.kind.toStdString() + ": " + file.bytes.left(200).toStdString());
        const CliResult result = cli.import(file.kind, file.bytes);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.errors,
                  "in.csv:"_L1 + file.messages.join(u"\nin.csv:"_s) + "\ntallymere: Nothing was imported.\n"_L1);
        EXPECT_EQ(result.output, QString());
    }
    EXPECT_EQ(counts(), before);
}

TEST_P(Import, AfterAHundredErrorsOnlyTheirNumberIsTold)
{
    const CliResult result = cli.import(u"types"_s, "TypeName,Inventory\n" + QByteArray("A,x\n").repeated(130));
    EXPECT_EQ(result.status, 1);
    ASSERT_EQ(result.errorLines().size(), 102);
    EXPECT_EQ(result.errorLines()[99], u"in.csv:101: Inventory 'x' is neither true nor false"_s);
    EXPECT_EQ(result.errorLines()[100], u"in.csv: 30 more errors"_s);
    EXPECT_EQ(cli.import(u"items"_s, "ItemDescription,TypeName\r\n").status, 0) << "no rows, nothing to do";
}

TEST_P(Import, NumbersLeftEmptyAreAssignedAndGivenOnesLeaveTheCounterAlone)
{
    const QByteArray items =
        "ItemNo,ItemDescription,TypeName\n1002,Given,Produce\n,First,Produce\n,Second,Produce\n";
    ASSERT_EQ(cli.import(u"items"_s, items).status, 0);
    // 1002 was taken by hand.
    EXPECT_EQ(cli.column("list items", u"ItemNo"_s).join(u' '), u"1001 1002 1003 A1 B2 C3"_s);

    const QByteArray rows = "1001,,,,V1,Office,A1,1,1\n,,,,V1,Office,A1,1,1\n";
    ASSERT_EQ(cli.import(u"receipts"_s, receiptHeader + rows).status, 0);
    QStringList numbers = cli.column("list receipts", u"ReceiptNo"_s);
    numbers.sort();
    EXPECT_EQ(numbers.join(u' '), u"1001 1002"_s);
}

// A sheet of every kind of value, written by the list and read into another company; and told as CSV is.
TEST_P(Import, TakesTheSheetThatAListHasWritten)
{
    const QByteArray items = "ItemNo,ItemDescription,TypeName,StandardCost,Suspended,Notes\n"
                             "007,=1+1,Produce,1234.5678,true,\"one\ntwo _x0041_\"\n0.10,@x,Produce,0.1,,\n";
    ASSERT_EQ(cli.import(u"items"_s, items).status, 0);
    const QString file = folder.filePath(u"items.xlsx"_s);
    cli.output({u"list"_s, u"items"_s, u"--xlsx"_s, file});
    const QString written = cli.output("list items");
    EXPECT_TRUE(begins(cli.output("list items --for-import"), u"ItemNo,ItemDescription,"_s));
    EXPECT_TRUE(has(cli.errors("list items --for-import --defuse", 2), u"exclude each other"_s));
    EXPECT_TRUE(begins(cli.errors({u"import"_s, u"items"_s, file, u"--sheet"_s, u"items"_s}),
                       file
                           + u":1: Sheet 'items': The column 'ItemID' is set by the system and cannot be "
                             "imported.\n"_s));

    cli.execute(u"DELETE FROM Item"_s);
    cli.output({u"import"_s, u"items"_s, file, u"--except"_s,
                u"ItemID, SalesGLAccountID,COGSGLAccountID,InventoryGLAccountID,UnitPrice"_s});
    // Only the keys are others.
    const auto withoutKeys = [](const QString &csv) {
        QList<QStringList> rows = csvRows(csv.toUtf8());
        for (QStringList &row : rows)
            row.removeFirst();
        return rows;
    };
    EXPECT_EQ(withoutKeys(cli.output("list items")), withoutKeys(written));
}

TEST_P(Import, RowsMayComeThroughAPipe)
{
    const auto piped = cli.start("import types /dev/stdin");
    piped->write("TypeName\nFood\n");
    piped->closeWriteChannel();
    EXPECT_EQ(CliRunner::finish(*piped).errors, QString());
    EXPECT_EQ(cli.list("list types").constFirst()[u"TypeName"_s], u"Food"_s);
}

TEST_P(Import, WhatAWindowWouldAskAboutNeedsAYes)
{
    cli.execute(u"UPDATE Company SET WPeriodFromPP = 11, WPeriodFromYYYY = 2026"_s);
    const QByteArray rows = "R1,,2026,3,V1,Office,A1,1,1\nR2,,2026,12,V1,Office,A1,1000000,1\n"
                            "R3,9999-12-31,2026,12,V1,Office,A1,1,1\nR4,2001-03-01,2026,12,V1,Office,A1,1,1\n";
    const CliResult refused = cli.import(u"receipts"_s, receiptHeader + rows);
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(begins(refused.errors, u"in.csv:2: GL Period is not within expected range as defined by "_s));
    EXPECT_TRUE(has(refused.errors, u"\nin.csv:3: ItemNo 'A1': The quantity is 1,000,000. "_s));
    EXPECT_TRUE(has(refused.errors, u"\nin.csv:4: "_s) && has(refused.errors, u"more than a year away"_s));
    EXPECT_FALSE(has(refused.errors, u"\nin.csv:5: "_s)) << "a former year";
    cli.output("import receipts in.csv --yes");
    EXPECT_EQ(cli.list("list receipts").size(), 4);
}

TEST_P(Import, AndPostingAreRefusedWhileAnotherUserHoldsTheTableUnlessTheyMayWait)
{
    const QByteArray receipts = receiptHeader + ",,,,V1,Office,A1,1,1\n";
    ASSERT_EQ(cli.import(u"receipts"_s, receipts).status, 0);
    const auto anna = cli.anotherUser();
    auto receiptsLock = std::make_unique<Engine::TableLocks>(anna->database);
    receiptsLock->take(u"IReceipt"_s);

    const CliResult import = cli.import(u"receipts"_s, receipts);
    EXPECT_EQ(import.status, 1) << import;
    EXPECT_TRUE(import.errors.contains("Table 'Receipts' is locked"_L1)) << import;
    EXPECT_TRUE(begins(cli.errors("post receipts"),
                       u"tallymere: Unable to lock Receipts table... this table is being updated by another job. "
                       "In use by anna on "_s));

    auto balanceLock = std::make_unique<Engine::TableLocks>(anna->database);
    balanceLock->take(u"IBalance"_s);
    receiptsLock.reset();
    const auto patient = cli.start("post receipts --retry 600");
    Engine::LockManager &locks = anna->database.connection().locks();
    while (!locks.ownerOf(u"IReceipt"_s) && !patient->waitForFinished(1)) { } // which it takes first, and keeps
    EXPECT_FALSE(patient->waitForFinished(700)) << "it did not wait for the lock";
    balanceLock.reset();
    EXPECT_EQ(CliRunner::finish(*patient).status, 0);
    EXPECT_EQ(cli.list("history").size(), 1);
}

} // namespace
