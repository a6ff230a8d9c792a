#include "tests/cli/clirunner.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QStorageInfo>
#include <sys/mount.h>

using namespace Qt::StringLiterals;

namespace {

QString largeItemFile(int count)
{
    QString text = u"ItemNo,ItemDescription,ItemTypeID\n"_s;
    for (int i = 0; i < count; ++i)
        text += u"X%1,Number %1 of a long list,1\n"_s.arg(i);
    return text;
}

// A file system of its own on a folder; needs root.
class SmallDisk
{
public:
    explicit SmallDisk(const char *options)
        : m_mounted(mount("tmpfs", m_folder.path().toLocal8Bit().constData(), "tmpfs", 0, options) == 0)
    {
    }
    ~SmallDisk()
    {
        if (m_mounted)
            umount(path().constData());
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool isThere() const { return m_mounted; }
    QString folder() const { return m_folder.path(); }
    QByteArray path() const { return m_folder.path().toLocal8Bit(); }
    void makeReadOnly()
    {
        m_mounted = mount("tmpfs", path().constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0 && m_mounted;
    }

private:
    QTemporaryDir m_folder;
    bool m_mounted;
};

TEST(StoreFailure, AFolderThatIsMissingIsNamed)
{
    CliRunner cli(Store::Local);
    const CliResult result = cli.runBare({u"--data"_s, u"/nowhere/kitchen"_s, u"totals"_s});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.errors.contains("/nowhere/kitchen"_L1)) << result;
    EXPECT_FALSE(QDir(u"/nowhere"_s).exists());
}

TEST(StoreFailure, AFolderWithoutDatabaseIsNotFilledByReading)
{
    CliRunner cli(Store::Local);
    const CliResult result = cli.run({u"totals"_s});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.errors.contains("tallymere init"_L1)) << result;
    EXPECT_FALSE(QFile::exists(cli.folder() + "/Corvane.sqlite"_L1));
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

TEST(StoreFailure, AServerThatRefusesIsNamed)
{
    CliRunner cli(Store::Local);
    const CliResult result = cli.runBare({u"--server"_s, u"127.0.0.1"_s, u"totals"_s}, {u"PGPORT=1"_s});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.errors.contains("127.0.0.1"_L1)) << result;
}

TEST(StoreFailure, WithoutSettingsTheUserIsToldToMakeThem)
{
    CliRunner cli(Store::Local);
    const CliResult result = cli.runBare({u"totals"_s}, {u"XDG_CONFIG_HOME=/nowhere"_s});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.errors.contains("The Corvane database has not been defined."_L1)) << result;
}

TEST(StoreFailure, AReadOnlyFolderIsToldAsSuch)
{
    SmallDisk disk("size=20m");
    if (!disk.isThere())
        GTEST_SKIP() << "mounting needs root";
    CliRunner cli(Store::Local);
    ASSERT_EQ(cli.runBare({u"--data"_s, disk.folder(), u"init"_s}).status, 0);
    disk.makeReadOnly();
    const CliResult result = cli.runBare({u"--data"_s, disk.folder(), u"totals"_s});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.errors.contains(disk.folder())) << result;
}

TEST(StoreFailure, OnAFullDiskNothingOfAnImportStays)
{
    SmallDisk disk("size=1600k");
    if (!disk.isThere())
        GTEST_SKIP() << "mounting needs root";
    CliRunner cli(Store::Local);
    const auto run = [&](const QStringList &words) {
        return cli.runBare(QStringList{u"--data"_s, disk.folder()} + words);
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
    if (!disk.isThere())
        GTEST_SKIP() << "mounting needs root";
    CliRunner cli(Store::Local);
    const auto run = [&](const QString &word) { return cli.runBare({u"--data"_s, disk.folder(), word}); };
    ASSERT_EQ(run(u"init"_s).status, 0);
    QFile ballast(disk.folder() + "/ballast"_L1);
    ASSERT_TRUE(ballast.open(QIODevice::WriteOnly));
    for (const int kibibytes : {160, 40, 0}) { // what is left for the kitchen
        ballast.resize(0);
        ballast.seek(0);
        ballast.write(QByteArray(QStorageInfo(disk.folder()).bytesAvailable() - kibibytes * 1024, 'x'));
        ballast.flush();
        const CliResult result = run(u"sample"_s);
        EXPECT_EQ(result.status, 3);
        EXPECT_TRUE(result.errors.contains("is full"_L1)) << result;
    }
    ballast.remove();
    const CliResult result = run(u"sample"_s);
    EXPECT_EQ(result.status, 0) << result;
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
