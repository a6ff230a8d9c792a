#include "tests/cli/clirunner.h"
#include "tests/support/smalldisk.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace {

QString largeItemFile(int count)
{
    QString text = u"ItemNo,ItemDescription,ItemTypeID\n"_s;
    for (int i = 0; i < count; ++i)
        text += u"X%1,Number %1 of a long list,1\n"_s.arg(i);
    return text;
}

TEST(StoreFailure, ADatabaseThatCannotBeOpenedIsNamed)
{
    CliRunner cli(Store::Local);
    const struct
    {
        QStringList place;
        QStringList environment;
        QString named;
    } cases[] = {
        {{u"--data"_s, u"/nowhere/kitchen"_s}, {}, u"/nowhere/kitchen"_s},
        {{u"--data"_s, cli.folder()}, {}, u"tallymere init"_s},
        {{u"--server"_s, u"127.0.0.1"_s}, {u"PGPORT=1"_s}, u"127.0.0.1"_s},
        {{}, {u"XDG_CONFIG_HOME=/nowhere"_s}, u"The Corvane database has not been defined."_s},
    };
    for (const auto &c : cases) {
        const CliResult result = cli.runBare(c.place + QStringList(u"totals"_s), c.environment);
        EXPECT_EQ(result.status, 3);
        EXPECT_TRUE(result.errors.contains(c.named)) << result;
    }
    EXPECT_FALSE(QDir(u"/nowhere"_s).exists());
    EXPECT_FALSE(QFile::exists(cli.folder() + "/Corvane.sqlite"_L1)) << "reading fills no folder";
}

TEST(StoreFailure, AFileThatIsNoDatabaseStaysAsItIs)
{
    CliRunner cli(Store::Local);
    const QByteArray letter = "Dear Anna, this is no database but a letter that got the wrong name.\n";
    QFile file(cli.folder() + "/Corvane.sqlite"_L1);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(letter);
    file.close();
    for (const QString &command : {u"totals"_s, u"init"_s, u"sample"_s}) {
        const CliResult result = cli.run({command});
        EXPECT_EQ(result.status, 3);
        EXPECT_TRUE(result.errors.contains("is not a database"_L1)) << result;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), letter);
}

TEST(StoreFailure, OnAFullDiskNothingOfAnImportStays)
{
    SmallDisk disk("size=1600k");
    if (!disk.isMounted())
        GTEST_SKIP() << "mounting needs root";
    CliRunner cli(Store::Local);
    const auto run = [&](const QStringList &words) {
        return cli.runBare(QStringList{u"--data"_s, disk.path()} + words);
    };
    ASSERT_EQ(run({u"init"_s}).status, 0);
    ASSERT_EQ(run({u"import"_s, u"types"_s, cli.writeFile(u"types.csv"_s, "TypeName\nProduce\n")}).status, 0);

    cli.writeFile(u"items.csv"_s, largeItemFile(20'000).toUtf8());
    const CliResult result = run({u"import"_s, u"items"_s, u"items.csv"_s});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.errors.contains("is full"_L1)) << result;
    EXPECT_EQ(run({u"list"_s, u"items"_s}).rows().size(), 1);
    cli.writeFile(u"few.csv"_s, largeItemFile(3).toUtf8());
    EXPECT_EQ(run({u"import"_s, u"items"_s, u"few.csv"_s}).status, 0);
    EXPECT_EQ(run({u"list"_s, u"items"_s}).rows().size(), 4);
}

TEST(StoreFailure, AKitchenThatFindsTheDiskFullFitsInOnceThereIsRoom)
{
    SmallDisk disk("size=6m");
    if (!disk.isMounted())
        GTEST_SKIP() << "mounting needs root";
    CliRunner cli(Store::Local);
    const auto run = [&](const QString &word) { return cli.runBare({u"--data"_s, disk.path(), word}); };
    ASSERT_EQ(run(u"init"_s).status, 0);
    QFile ballast(disk.path() + "/ballast"_L1);
    ASSERT_TRUE(ballast.open(QIODevice::WriteOnly));
    int refusals = 0;
    int status = -1;
    for (int kibibytes = 0; status != 0 && kibibytes < 5000; kibibytes += 160) { // what is left for the kitchen
        ballast.resize(0);
        ballast.seek(0);
        ballast.write(QByteArray(QStorageInfo(disk.path()).bytesAvailable() - kibibytes * 1024, 'x'));
        ballast.flush();
        const CliResult result = run(u"sample"_s);
        status = result.status;
        if (status == 0)
            break;
        ++refusals;
        EXPECT_EQ(status, 3);
        EXPECT_TRUE(result.errors.contains("is full"_L1)) << kibibytes << result;
    }
    EXPECT_EQ(status, 0);
    EXPECT_GT(refusals, 3);
}

TEST(StoreFailure, OutputThatCannotBeWrittenIsNoSuccess)
{
    CliRunner cli(Store::Local);
    ASSERT_EQ(cli.run({u"init"_s}).status, 0);
    QProcess process;
    process.setStandardOutputFile(u"/dev/full"_s);
    process.start(QStringLiteral(TALLYMERE_PROGRAM), {u"--data"_s, cli.folder(), u"list"_s, u"currencies"_s});
    const CliResult result = CliRunner::finish(process);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errors.contains("could not be written"_L1)) << result;
}

} // namespace
