#include "care/backupschedule.h"

#include "base/settingsstore.h"
#include "data/lastbackup.h"
#include "tests/support/files.h"
#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct DailyBackupTest : KitchenTest
{
    DailyBackupTest()
    {
        kitchen.makeHost();
        kitchen.database().session().clock = [this] { return today.startOfDay(); };
    }

    QStringList files() const { return entriesOf(folder.path()); }
    static QString nameOf(const QString &file) { return QFileInfo(file).fileName(); }
    void touch(const QString &name) const { putContent(folder.filePath(name), {}); }

    QDate today{2026, 3, 30};
    const QTemporaryDir folder;
};

TEST_P(DailyBackupTest, KeepsTheLastOnesAndNoOtherFileGoes)
{
    const DailyBackups backups(kitchen.database(), folder.path());
    const QString first = nameOf(backups.fileOf(today));
    const QString stem = QString(first).remove(u"2026-03-30.sqlite"_s);
    // What is not told by its whole name, is of another database, or of a day to come.
    const QStringList others{stem + u"2026-02-30.sqlite"_s, stem + u"2026-03-01.sqlite.old"_s,
                             stem + u"2026-3-1.sqlite"_s,   u"tallymere-daily-other-2026-03-01.sqlite"_s,
                             stem + u"2027-01-01.sqlite"_s, u"notes"_s};
    for (const QString &name : others)
        touch(name);
    ASSERT_TRUE(QDir(folder.path()).mkdir(stem + u"2026-01-01.sqlite"_s));

    const BackupSchedule schedule{.isOn = true, .folder = folder.path(), .kept = 2};
    QStringList made;
    for (int day = 0; day < 4; ++day, today = today.addDays(1)) {
        EXPECT_FALSE(backups.isMade(today));
        backUpDaily(kitchen.database(), schedule, progress);
        EXPECT_TRUE(backups.isMade(today));
        made << nameOf(backups.fileOf(today));
        EXPECT_THROW(backUpDaily(kitchen.database(), schedule, progress), RuleError) << "one a day";
    }
    QStringList expected = others + made.last(2) + QStringList(stem + u"2026-01-01.sqlite"_s);
    expected.sort();
    QStringList found = files();
    found.sort();
    EXPECT_EQ(found, expected);
    EXPECT_EQ(lastBackup(kitchen.database()).made.date(), today.addDays(-1));
}

TEST_P(DailyBackupTest, OneThatFailsRemovesNothing)
{
    BackupSchedule schedule{.isOn = true, .folder = folder.path(), .kept = 1};
    backUpDaily(kitchen.database(), schedule, progress);
    today = today.addDays(1);
    CountedProgress stopped(0, [] { throw SilentAbort(); });
    const QStringList before = files();
    EXPECT_THROW(backUpDaily(kitchen.database(), schedule, stopped), SilentAbort);
    EXPECT_EQ(files(), before);
    schedule.folder += u"/gone"_s;
    EXPECT_TRUE(refusalOf([&] { backUpDaily(kitchen.database(), schedule, progress); }).endsWith("> folder"_L1));
    EXPECT_EQ(files(), before);

    MemorySettings settings;
    EXPECT_FALSE(BackupSchedule::readFrom(settings).isOn);
    EXPECT_TRUE(schedule.keepIn(settings));
    EXPECT_EQ(BackupSchedule::readFrom(settings).folder, schedule.folder);
    EXPECT_EQ(BackupSchedule::readFrom(settings).kept, 1);
}

} // namespace

ON_BOTH_STORES(DailyBackupTest);
