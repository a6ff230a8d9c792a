#include "engine/driver.h"
#include "engine/locks.h"
#include "engine/table.h"
#include "tests/cli/clirunner.h"

#include <gtest/gtest.h>
#include <QSet>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

class Concurrency : public testing::TestWithParam<Store>
{
};

ON_BOTH_STORES(Concurrency);

QByteArray items(const QByteArray &name, int count)
{
    QByteArray csv = "ItemDescription,TypeName\n";
    for (int i = 0; i < count; ++i)
        csv += name + ' ' + QByteArray::number(i) + ",Produce\n";
    return csv;
}

const QByteArray receipts = "VendorNo,WarehouseName,ItemNo,QtyReceived,UnitCost\nV1,Office,A1,1,1\n";

TEST_P(Concurrency, TwoImportsAtATimeComeInWholeOrAreRefused)
{
    CliRunner cli(GetParam());
    makeSmallCompany(cli);
    constexpr int count = 300;
    cli.writeFile(u"one.csv"_s, items("One", count));
    cli.writeFile(u"two.csv"_s, items("Two", count));
    const auto one = cli.start({u"import"_s, u"items"_s, u"one.csv"_s});
    const auto two = cli.start({u"import"_s, u"items"_s, u"two.csv"_s});
    qsizetype expected = 3;
    for (QProcess *process : {one.get(), two.get()}) {
        const CliResult result = CliRunner::finish(*process);
        if (result.status == 0)
            expected += count;
        else
            EXPECT_EQ(result.status, 1) << result;
    }
    EXPECT_GE(expected, 3 + count);
    const QStringList numbers = cli.column({u"list"_s, u"items"_s}, u"ItemNo"_s);
    EXPECT_EQ(numbers.size(), expected);
    EXPECT_EQ(QSet<QString>(numbers.begin(), numbers.end()).size(), expected) << "a number was given twice";
}

TEST_P(Concurrency, ATableHeldByAnotherUserRefusesImportAndPosting)
{
    CliRunner cli(GetParam());
    makeSmallCompany(cli);
    ASSERT_EQ(cli.import(u"receipts"_s, receipts).status, 0);
    const auto anna = cli.anotherUser();
    Engine::Table table(anna->database, u"IReceipt"_s);
    table.open();
    table.lockTable();

    const CliResult import = cli.import(u"receipts"_s, receipts);
    EXPECT_EQ(import.status, 1) << import;
    EXPECT_TRUE(import.errors.contains("Table 'Receipts' is locked"_L1)) << import;
    const CliResult post = cli.run({u"post"_s, u"receipts"_s});
    EXPECT_EQ(post.status, 1);
    EXPECT_EQ(post.errorLines().value(0),
              u"tallymere: Unable to lock Receipts table... this table is being updated by another job."_s);

    Engine::Table held(anna->database, u"IBalance"_s);
    held.open();
    held.lockTable();
    table.unlockTable();
    const auto patient = cli.start({u"post"_s, u"receipts"_s, u"--retry"_s, u"600"_s});
    Engine::LockManager &locks = anna->database.connection().locks();
    while (!locks.ownerOf(u"IReceipt"_s) && !patient->waitForFinished(1)) { } // which it takes first, and keeps
    EXPECT_FALSE(patient->waitForFinished(700)) << "it did not wait for the lock";
    held.unlockTable();
    EXPECT_EQ(CliRunner::finish(*patient).status, 0);
    EXPECT_EQ(cli.list({u"history"_s}).size(), 1);
}

TEST(ConcurrencyOnAServer, AStrangersLockIsWaitedForAsLongAsWasSaid)
{
    CliRunner cli(Store::Remote);
    makeSmallCompany(cli);
    ASSERT_EQ(cli.import(u"receipts"_s, receipts).status, 0);
    cli.writeFile(u"more.csv"_s, receipts);
    const auto anna = cli.anotherUser();
    Engine::Connection &annas = anna->database.connection();
    const QStringList post{u"post"_s, u"receipts"_s};
    const QStringList import{u"import"_s, u"receipts"_s, u"more.csv"_s};
    const QStringList sync{u"sync"_s, u"items"_s};
    const struct
    {
        QStringList words;
        const char *held;
    } cases[] = {
        {import, "LOCK TABLE IReceipt"},
        {sync, "LOCK TABLE Item"},
        {sync, "UPDATE Item SET WgtAvgCost = WgtAvgCost"},
        {post, "UPDATE Item SET WgtAvgCost = WgtAvgCost"},
        {post, "LOCK TABLE Vendor"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.words.join(u' ').toStdString() + " against " + c.held);
        annas.execute("BEGIN; "_L1 + QLatin1StringView(c.held));
        const CliResult refused = cli.run(c.words + QStringList{u"--retry"_s, u"1"_s});
        EXPECT_EQ(refused.status, 1) << refused;
        EXPECT_TRUE(refused.errors.contains("anna on"_L1)) << refused;
        const auto patient = cli.start(c.words + QStringList{u"--retry"_s, u"600"_s});
        EXPECT_FALSE(patient->waitForFinished(700)) << "it did not wait for the lock";
        annas.execute(u"ROLLBACK"_s);
        EXPECT_EQ(CliRunner::finish(*patient).status, 0);
    }
    EXPECT_EQ(cli.list({u"history"_s}).size(), 2);
}

TEST_P(Concurrency, EachOfTwoPostersTellsWhatItPostedItself)
{
    CliRunner cli(GetParam());
    makeSmallCompany(cli);
    ASSERT_EQ(cli.import(u"receipts"_s, receipts + "V2,Office,A1,2,1\nV1,Office,B2,3,1\n").status, 0);
    const auto anna = cli.anotherUser();
    Engine::Table table(anna->database, u"IReceipt"_s);
    table.open();
    table.lockTable();
    const auto one = cli.start({u"post"_s, u"receipts"_s, u"--retry"_s, u"60"_s});
    const auto two = cli.start({u"post"_s, u"receipts"_s, u"--retry"_s, u"60"_s});
    EXPECT_FALSE(one->waitForFinished(1000));
    EXPECT_FALSE(two->waitForFinished(1));
    table.unlockTable();
    QStringList outputs{CliRunner::finish(*one).output, CliRunner::finish(*two).output};
    outputs.sort();
    EXPECT_EQ(outputs, (QStringList{u"0 receipt(s) posted\n"_s, u"3 receipt(s) posted\n"_s}));
    EXPECT_EQ(cli.list({u"history"_s}).size(), 3);
}

TEST_P(Concurrency, AKilledImportLeavesNothing)
{
    CliRunner cli(GetParam());
    makeSmallCompany(cli);
    const auto anna = cli.anotherUser();
    Engine::LockManager &locks = anna->database.connection().locks();
    for (int count = 20'000;; count *= 2) { // until it is not done before it is killed
        cli.writeFile(u"long.csv"_s, items("Long", count));
        const auto import = cli.start({u"import"_s, u"items"_s, u"long.csv"_s});
        while (!locks.ownerOf(u"Item"_s) && !import->waitForFinished(1)) { }
        import->kill();
        const CliResult result = CliRunner::finish(*import);
        if (import->exitStatus() == QProcess::CrashExit)
            break;
        ASSERT_EQ(result.status, 0) << result;
        anna->database.connection().execute(u"DELETE FROM Item WHERE ItemDescription LIKE 'Long %'"_s);
    }
    while (locks.ownerOf(u"Item"_s)) // the server takes its time to notice
        QThread::msleep(1);
    EXPECT_EQ(cli.list({u"list"_s, u"items"_s}).size(), 3);
    EXPECT_EQ(cli.import(u"items"_s, items("After", 1)).status, 0);
}

} // namespace
