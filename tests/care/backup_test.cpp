#include "care/backup.h"

#include "base/ruleerror.h"
#include "care/bookcheck.h"
#include "data/lastbackup.h"
#include "data/layouts.h"
#include "tests/support/documents.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Does something with the first step.
struct Interrupted final : Progress
{
    explicit Interrupted(std::function<void()> once)
        : action(std::move(once))
    {
    }
    void start(int) override { }
    void step() override
    {
        if (const auto now = std::exchange(action, {}))
            now();
    }
    void finish() override { }

    std::function<void()> action;
};

class BackupTest : public KitchenTest
{
protected:
    BackupTest()
    {
        kitchen.makeHost();
        kitchen.database().createOrUpdateTable(Layouts::iDocSaved());
        kitchen.execute(u"UPDATE Vendor SET Notes = 'Ünïcode, ''quoted''\nand long' WHERE VendorID = 1"_s);
        std::mt19937 random(1);
        for (int id = 1; id <= 9; ++id)
            addRandomDocument(kitchen, *DocumentKinds::all().at(id % DocumentKinds::all().size()), id, 4, random);
        for (const DocumentKind *kind : DocumentKinds::all())
            DocumentPosting(kitchen.database(), *kind).run(prompts, progress);
    }

    static QStringList contents(Engine::Database &database)
    {
        QStringList all;
        for (const QString &table : database.connection().tables()) {
            QStringList rows = rowsOf(database, "SELECT * FROM "_L1 + table);
            rows.sort();
            all << table << rows;
        }
        return all;
    }

    QString refusal(const std::function<void()> &step)
    {
        try {
            step();
        } catch (const RuleError &error) {
            return error.message();
        }
        return {};
    }

    QStringList filesLeft()
    {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    const QTemporaryDir folder;
    const QString file = folder.filePath(u"kitchen.bak"_s);
};

TEST_P(BackupTest, BringsEverythingBackIntoEitherStore)
{
    const QStringList before = contents(kitchen.database());
    ASSERT_GT(before.size(), 60);
    backUp(kitchen.database(), file, progress);
    EXPECT_EQ(filesLeft(), QStringList(u"kitchen.bak"_s));
    for (const Store store : {Store::Local, Store::Remote}) {
        SCOPED_TRACE(storeName(store));
        TestStore other(store);
        restoreInto(other.database(), file, progress);
        EXPECT_EQ(contents(other.database()), before);
        EXPECT_EQ(checkBooks(other.database(), progress,
                             [](const BookCheck &, const BookFinding &finding) {
                                 ADD_FAILURE() << finding.text().toStdString();
                             }),
                  0);
        // Numbers that the engine gives go on above those that have come along.
        const auto highest = other.database().connection().prepare(u"SELECT MAX(IHistID) FROM IHist"_s);
        ASSERT_TRUE(highest->next());
        const qint64 last = highest->intAt(0);
        highest->reset();
        other.execute(u"INSERT INTO IHist (ItemID) VALUES (1)"_s);
        EXPECT_EQ(other.found(u"SELECT MAX(IHistID) FROM IHist"_s).toLongLong(), last + 1);
        EXPECT_TRUE(refusal([&] {
                        restoreInto(other.database(), file, progress);
                    }).endsWith(u"holds a database already."_s));
    }
}

TEST_P(BackupTest, IsOfOneMomentWhileOthersWrite)
{
    const QStringList before = contents(kitchen.database());
    const auto anna = kitchen.anotherUser();
    Interrupted writing(
        [&anna] { anna->database.connection().execute(u"UPDATE Item SET UnitPrice = 77; DELETE FROM IHist"_s); });
    backUp(kitchen.database(), file, writing);
    ASSERT_FALSE(writing.action);
    TestStore other(Store::Local);
    restoreInto(other.database(), file, progress);
    EXPECT_EQ(contents(other.database()), before);
}

TEST_P(BackupTest, LeavesNothingOfWhatFails)
{
    const QDateTime now(QDate(2026, 3, 20), QTime(17, 5));
    kitchen.database().session().clock = [&now] { return now; };
    Interrupted cancelled([] { throw SilentAbort(); });
    EXPECT_THROW(backUp(kitchen.database(), file, cancelled), SilentAbort);
    EXPECT_EQ(filesLeft(), QStringList());
    EXPECT_FALSE(lastBackup(kitchen.database()).made.isValid());
    backUp(kitchen.database(), file, progress);
    EXPECT_EQ(lastBackup(kitchen.database()).made, now);
    EXPECT_TRUE(refusal([&] { backUp(kitchen.database(), file, progress); }).contains(u"exists already"_s));

    const QTemporaryDir target;
    const auto restore = [&] { return refusal([&] { restoreIntoFolder(file, target.path(), progress); }); };
    const auto left = [&] {
        return QDir(target.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    };
    QFile backup(file);
    ASSERT_TRUE(backup.open(QIODevice::ReadWrite));
    const QByteArray sound = backup.readAll();
    backup.resize(sound.size() / 2);
    EXPECT_TRUE(restore().contains(u"damaged"_s));
    backup.seek(0);
    backup.write("no database at all");
    backup.flush();
    EXPECT_TRUE(restore().contains(u"no backup"_s));
    EXPECT_EQ(left(), QStringList());
    backup.seek(0);
    backup.write(sound);
    backup.close();
    restoreIntoFolder(file, target.path(), progress);
    EXPECT_TRUE(left().contains(u"Corvane.sqlite"_s));
    EXPECT_TRUE(restore().contains(u"holds a database already"_s));
}

TEST_P(BackupTest, TellsOlderReleasesAndRefusesNewerOnes)
{
    if (GetParam() == Store::Local)
        kitchen.execute(u"DROP INDEX Bank_BANKGLACCOUNTID"_s); // which a server drops with its column
    kitchen.execute(u"ALTER TABLE Bank DROP COLUMN BankGLAccountID"_s);
    backUp(kitchen.database(), file, progress);
    const QTemporaryDir target;
    EXPECT_EQ(restoreIntoFolder(file, target.path(), progress), QStringList(Layouts::titleOf(u"Bank"_s)));

    kitchen.execute(u"ALTER TABLE Bank ADD COLUMN Futurity integer"_s);
    const QString newer = file + u"2"_s;
    backUp(kitchen.database(), newer, progress);
    const QTemporaryDir another;
    EXPECT_TRUE(refusal([&] {
                    restoreIntoFolder(newer, another.path(), progress);
                }).contains(u"Futurity"_s, Qt::CaseInsensitive));
}

} // namespace

ON_BOTH_STORES(BackupTest);
