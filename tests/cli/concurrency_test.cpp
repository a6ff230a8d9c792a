#include "engine/lockmanager.h"
#include "engine/table.h"
#include "tests/cli/clirunner.h"

using namespace Qt::StringLiterals;

namespace {

class Concurrency : public testing::TestWithParam<Store>
{
};

ON_BOTH_STORES(Concurrency);

const QByteArray receipts = "VendorNo,WarehouseName,ItemNo,QtyReceived,UnitCost\nV1,Office,A1,1,1\n";

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

} // namespace
