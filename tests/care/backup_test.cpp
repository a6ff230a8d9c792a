#include "care/backup.h"

#include "care/bookcheck.h"
#include "care/fileinmaking.h"
#include "data/lastbackup.h"
#include "tests/support/documents.h"
#include "tests/support/files.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct BackupTest : KitchenTest
{
    BackupTest()
    {
        kitchen.makeHost();
        kitchen.database().createOrUpdateTable(Layouts::iDocSaved());
        kitchen.execute(u"UPDATE Vendor SET Notes = 'Ünïcode, ''quoted''\nand long' WHERE VendorID = 1"_s);
        std::mt19937 random(1);
        addPostedDocuments(kitchen, 9, random);
    }

    static QStringList contents(TestStore &store)
    {
        return contentsOf(store.database(), store.connection().tables());
    }
    QString refusalToRestore(const QString &backup, const QTemporaryDir &target)
    {
        return refusalOf([&] { restoreIntoFolder(backup, target.path(), u"maria"_s, progress); });
    }

    // Of whoever restored it; the rest is as it was.
    static void takeNote(TestStore &restored)
    {
        const QString note = u"FROM History WHERE Event = 'Restored from the backup kitchen.bak'"_s;
        EXPECT_EQ(restored.found(u"SELECT \"user\" "_s + note), u"maria"_s);
        restored.execute(u"DELETE "_s + note);
    }

    QStringList filesLeft() const { return entriesOf(folder.path()); }

    const QTemporaryDir folder;
    const QString file = folder.filePath(u"kitchen.bak"_s);
};

TEST_P(BackupTest, BringsEverythingBackIntoEitherStore)
{
    const QStringList before = contents(kitchen);
    ASSERT_GT(before.size(), 60);
    backUp(kitchen.database(), file, progress);
    EXPECT_EQ(filesLeft(), QStringList(u"kitchen.bak"_s));
    for (const Store store : {Store::Local, Store::Remote}) {
        SCOPED_TRACE(storeName(store));
        TestStore other(store);
        restoreInto(other.database(), file, u"maria"_s, progress);
        takeNote(other);
        EXPECT_EQ(contents(other), before);
        const auto tell = [](auto &, const BookFinding &finding) { ADD_FAILURE() << finding.text().toStdString(); };
        EXPECT_EQ(checkBooks(other.database(), progress, tell), 0);
        // Numbers that the engine gives go on above those that have come along.
        const qint64 last = other.found(u"SELECT MAX(IHistID) FROM IHist"_s).toLongLong();
        other.execute(u"INSERT INTO IHist (ItemID) VALUES (1)"_s);
        EXPECT_EQ(other.found(u"SELECT MAX(IHistID) FROM IHist"_s).toLongLong(), last + 1);
        EXPECT_TRUE(has(refusalOf([&] { restoreInto(other.database(), file, u"maria"_s, progress); }),
                        u"holds a database already."_s));
    }
}

TEST_P(BackupTest, IsOfOneMomentWhileOthersWrite)
{
    const QStringList before = contents(kitchen);
    const auto anna = kitchen.anotherUser();
    CountedProgress writing(0, [&anna] { anna->execute(u"UPDATE Item SET UnitPrice = 77; DELETE FROM IHist"_s); });
    backUp(kitchen.database(), file, writing);
    ASSERT_GT(writing.steps, 0);
    TestStore other(Store::Local);
    restoreInto(other.database(), file, u"maria"_s, progress);
    takeNote(other);
    EXPECT_EQ(contents(other), before);
}

TEST_P(BackupTest, LeavesNothingOfWhatFails)
{
    const QDateTime now(QDate(2026, 3, 20), QTime(17, 5));
    kitchen.database().session().clock = [&now] { return now; };
    CountedProgress cancelled(0, [] { throw SilentAbort(); });
    EXPECT_THROW(backUp(kitchen.database(), file, cancelled), SilentAbort);
    EXPECT_EQ(filesLeft(), QStringList());
    EXPECT_FALSE(lastBackup(kitchen.database()).made.isValid());
    // A program that was killed, and one that lives.
    const QDir beside = QFileInfo(file).dir();
    for (const auto &[name, process] : {std::pair(u".copy-killed"_s, 0), {u".copy-living"_s, 1}}) {
        beside.mkdir(name);
        QFile owner(beside.filePath(name + "/owner"_L1));
        ASSERT_TRUE(owner.open(QIODevice::WriteOnly));
        const qint64 id = process ? QCoreApplication::applicationPid() : 0x7ffffffe;
        owner.write(u"%1\n%2\n%3\n"_s.arg(id).arg(qAppName(), QSysInfo::machineHostName()).toUtf8());
    }
    backUp(kitchen.database(), file, progress);
    EXPECT_FALSE(beside.exists(u".copy-killed"_s));
    EXPECT_TRUE(beside.exists(u".copy-living"_s));
    EXPECT_EQ(lastBackup(kitchen.database()).made, now);
    EXPECT_TRUE(has(refusalOf([&] { backUp(kitchen.database(), file, progress); }), u"exists already"_s));

    const QTemporaryDir target;
    const auto restore = [&] { return refusalToRestore(file, target); };
    QFile backup(file);
    ASSERT_TRUE(backup.open(QIODevice::ReadWrite));
    const QByteArray sound = backup.readAll();
    backup.resize(sound.size() / 2);
    EXPECT_TRUE(restore().contains(u"damaged"_s));
    backup.seek(0);
    backup.write("no database at all");
    backup.flush();
    EXPECT_TRUE(restore().contains(u"no backup"_s));
    EXPECT_EQ(entriesOf(target.path()), QStringList());
    backup.seek(0);
    backup.write(sound);
    backup.close();
    restoreIntoFolder(file, target.path(), u"maria"_s, progress);
    EXPECT_TRUE(entriesOf(target.path()).contains(u"Corvane.sqlite"_s));
    EXPECT_TRUE(restore().contains(u"holds a database already"_s));
}

TEST_P(BackupTest, ARestoreThatEndsEarlyTakesTheNewDatabaseOfTheServerBack)
{
    backUp(kitchen.database(), file, progress);
    const QString name = u"test_%1_restored"_s.arg(QCoreApplication::applicationPid());
    const auto isThere = [&] {
        TestUser keeper(QStringList{u"remote"_s, u"postgres"_s});
        return !rowsOf(keeper.database, u"SELECT 1 FROM pg_database WHERE datname = '%1'"_s.arg(name)).isEmpty();
    };
    const auto restore = [&](TestUser &user, Progress &told) {
        user.database.createIfMissing = true;
        user.database.connection();
        restoreInto(user.database, file, u"maria"_s, told);
    };
    CountedProgress cancelled(0, [] { throw SilentAbort(); });
    {
        TestUser anna(QStringList{u"remote"_s, name});
        EXPECT_THROW(restore(anna, cancelled), SilentAbort);
    }
    EXPECT_FALSE(isThere());
    {
        TestUser anna(QStringList{u"remote"_s, name});
        restore(anna, progress);
        EXPECT_THROW(restore(anna, progress), RuleError);
    }
    EXPECT_TRUE(isThere()) << "it holds something";
    dropTestDatabase(name);
}

TEST_P(BackupTest, TellsOlderReleasesAndRefusesNewerOnes)
{
    if (GetParam() == Store::Local)
        kitchen.execute(u"DROP INDEX Bank_BANKGLACCOUNTID"_s); // which a server drops with its column
    kitchen.execute(
        u"ALTER TABLE Bank DROP COLUMN BankGLAccountID; DROP TABLE IBarcode; DELETE FROM IDataVersion"_s);
    backUp(kitchen.database(), file, progress);
    const QTemporaryDir target;
    EXPECT_EQ(restoreIntoFolder(file, target.path(), u"maria"_s, progress),
              QStringList({Layouts::titleOf(u"Bank"_s), Layouts::titleOf(u"IBarcode"_s)}));

    kitchen.execute(u"ALTER TABLE Bank ADD COLUMN Futurity integer"_s);
    backUp(kitchen.database(), file + u"2"_s, progress);
    const QTemporaryDir another;
    EXPECT_TRUE(has(refusalToRestore(file + u"2"_s, another).toLower(), u"futurity"_s));
    constexpr qint64 moreThanThereIs = 1LL << 60;
    EXPECT_TRUE(has(refusalOf([&] { FileInMaking(another.path(), moreThanThereIs); }), u"MB are needed"_s));

    kitchen.execute(u"DELETE FROM IDataVersion; INSERT INTO IDataVersion VALUES (1, 99, '9.8')"_s);
    backUp(kitchen.database(), file + u"3"_s, progress);
    EXPECT_TRUE(has(refusalToRestore(file + u"3"_s, another), u"newer release, 9.8"_s));
    EXPECT_EQ(entriesOf(another.path()), QStringList());
}

} // namespace

ON_BOTH_STORES(BackupTest);
