#include "engine/store/readmoment.h"
#include "tests/engine/storetest.h"
#include "tests/support/otheruser.h"

#include <QDir>
#include <QFileInfo>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace Engine;

// The files of a local store taken away, replaced or reached by another way while they are in use. Done by programs
// of their own, as a user does it: a process that closes the database's file loses its locks.

namespace {

// What a program that opens the database now finds in it.
QString contentOf(const QString &folder)
{
    return OtherUser({u"local"_s, folder}, {u"obey"_s})
        .ask(u"rows SELECT a FROM T UNION ALL SELECT integrity_check FROM pragma_integrity_check"_s);
}

// The database lies in "data". The backup, a file beside it, holds "old" only; "today" stands in the log alone. The
// later copy was taken to another machine yesterday, where work went on.
struct Kitchen
{
    QTemporaryDir home;
    QString folder = home.filePath(u"data"_s);
    TestUser maria{QStringList{u"local"_s, folder}};

    Kitchen()
    {
        QDir().mkdir(folder);
        maria.database.createIfMissing = true;
        maria.execute(u"CREATE TABLE T (a TEXT)"_s);
        insert(u"old"_s);
        maria.database.close();
        maria.database.createIfMissing = false;
        shell(u"cp data/Corvane.sqlite backup"_s);
        insert(u"yesterday"_s);
        maria.database.close();
        shell(u"cp data/Corvane.sqlite later"_s);
        insert(u"today"_s);
    }
    static void write(TestUser &user, const QString &statement)
    {
        Transaction transaction(user.connection());
        user.execute(statement);
        transaction.commit();
    }
    void insert(const QString &value) { write(maria, u"INSERT INTO T VALUES ('%1')"_s.arg(value)); }

    // Work on a copy, each statement as a visit of its own.
    void change(const QString &file, const QStringList &statements) const
    {
        shell(u"mkdir away && mv %1 away/Corvane.sqlite"_s.arg(file));
        for (const QString &statement : statements) {
            TestUser anna(QStringList{u"local"_s, home.filePath(u"away"_s)});
            write(anna, statement);
        }
        shell(u"mv away/Corvane.sqlite %1 && rm -r away"_s.arg(file));
    }

    void shell(const QString &command) const
    {
        EXPECT_EQ(QProcess::execute(u"sh"_s, {u"-c"_s, u"cd \"$0\" && "_s + command, home.path()}), 0);
    }
};

const struct Loss
{
    QString command;
    QString content = u"old ok"_s; // what the database holds afterwards
    QString place = u"data"_s; // where it is then
} losses[] = {
    {u"rm data/Corvane.sqlite && cp backup data/Corvane.sqlite"_s},
    {u"mv backup data/Corvane.sqlite"_s},
    {u"cp backup data/Corvane.sqlite"_s},
    {u"mv data elsewhere"_s, u"old yesterday today ok"_s, u"elsewhere"_s},
    {u"rm data/Corvane.sqlite-wal data/Corvane.sqlite-shm"_s, u"old yesterday today ok"_s},
};

} // namespace

TEST(LocalFiles, BelongToOwnerAndGroupAloneWhateverTheMask)
{
    for (const mode_t mask : {0, 0077}) {
        const mode_t before = ::umask(mask);
        Kitchen kitchen;
        kitchen.insert(u"more"_s); // so that there is a log
        for (const QString &file : QDir(kitchen.folder).entryList(QDir::Files))
            EXPECT_EQ(QFileInfo(kitchen.folder + u'/' + file).permissions() & ~(QFile::ReadUser | QFile::WriteUser),
                      QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup)
                << qPrintable(file);
        ::umask(before);
    }
}

TEST(LocalFiles, ADatabaseThatIsNoLongerAtItsPlaceTakesNoMoreWritesAndWhatIsReadOfItCountsForNothing)
{
    for (const Loss &loss : losses) {
        SCOPED_TRACE(qPrintable(loss.command));
        Kitchen kitchen;
        OtherUser annas({u"local"_s, kitchen.folder}, {u"obey"_s});
        ASSERT_EQ(annas.ask(u"open T"_s), u"yes"_s);
        auto moment = std::make_unique<ReadMoment>(kitchen.maria.database);
        kitchen.shell(loss.command);

        EXPECT_EQ(errorOf([&] { moment->end(); }), ErrorCode::FileReplaced);
        EXPECT_EQ(errorOf([&] { ReadMoment(kitchen.maria.database); }), ErrorCode::FileReplaced);
        moment.reset();
        Connection &store = kitchen.maria.connection();
        QString message;
        EXPECT_EQ(errorOf([&] { kitchen.insert(u"lost"_s); }, &message), ErrorCode::FileReplaced);
        EXPECT_TRUE(has(message, kitchen.folder + "/Corvane.sqlite"_L1));
        EXPECT_EQ(errorOf([&] { store.locks().tryLockRecord(u"T"_s, {1}); }), ErrorCode::FileReplaced);
        EXPECT_EQ(errorOf([&] { store.locks().tryLockTable(u"T"_s); }), ErrorCode::FileReplaced);
        EXPECT_EQ(errorOf([&] { store.prepare(u"DELETE FROM T"_s)->execute(); }), ErrorCode::FileReplaced);
        EXPECT_EQ(annas.ask(u"sql DELETE FROM T"_s), message);
        kitchen.maria.database.close();
        annas.kill();
        EXPECT_EQ(contentOf(kitchen.home.filePath(loss.place)), loss.content);
    }
}

TEST(LocalFiles, ALaterCopyLaidOverTheFileStaysAsItIs)
{
    const std::pair<QStringList, QString> copies[] = {
        {{u"INSERT INTO T VALUES ('later')"_s, u"INSERT INTO T VALUES ('and later')"_s,
          u"PRAGMA user_version = 9999999"_s},
         u"old yesterday later and later ok"_s},
        {{u"PRAGMA application_id = 7"_s}, u"old yesterday ok"_s}, // another database of the same stamp
    };
    for (const auto &[changes, content] : copies) {
        for (const bool killed : {false, true}) { // and not in use any more, but with its log beside it
            SCOPED_TRACE(qPrintable(content + (killed ? u", killed before"_s : QString())));
            Kitchen kitchen;
            kitchen.change(u"later"_s, changes);
            OtherUser annas({u"local"_s, kitchen.folder}, {u"obey"_s});
            ASSERT_EQ(annas.ask(u"sql INSERT INTO T VALUES ('annas')"_s), u"yes"_s);
            if (killed) {
                kitchen.maria.database.close();
                annas.kill();
                ASSERT_TRUE(QFile::exists(kitchen.folder + "/Corvane.sqlite-wal"_L1));
            }
            kitchen.shell(u"cp later data/Corvane.sqlite"_s);
            if (!killed) {
                EXPECT_EQ(errorOf([&] { kitchen.insert(u"lost"_s); }), ErrorCode::FileReplaced);
                EXPECT_TRUE(annas.ask(u"sql DELETE FROM T"_s).contains("replaced"_L1));
                kitchen.maria.database.close();
                annas.kill();
            }
            EXPECT_EQ(contentOf(kitchen.folder), content);
        }
    }
}

TEST(LocalFiles, AFileOfTwoNamesIsNotOpened)
{
    for (const char *command :
         {"mkdir other && ln data/Corvane.sqlite other/Corvane.sqlite", "cp -al data other"}) {
        Kitchen kitchen;
        kitchen.maria.database.close();
        kitchen.shell(QString::fromLatin1(command));
        for (const char *folder : {"data", "other"}) {
            TestUser anna(QStringList{u"local"_s, kitchen.home.filePath(QString::fromLatin1(folder))});
            const QString file = anna.database.directory + "/Corvane.sqlite"_L1;
            EXPECT_TRUE(fails([&] { anna.connection(); }, ErrorCode::CannotOpen, file));
        }
        kitchen.shell(u"rm -r other"_s);
        EXPECT_EQ(contentOf(kitchen.folder), u"old yesterday today ok"_s);
    }
}

TEST(LocalFiles, TheOldLogTouchesNoReplacement)
{
    for (const Loss &loss : losses) {
        for (const bool opened : {false, true}) { // while the programs that had it open before still run
            SCOPED_TRACE(qPrintable(loss.command + (opened ? u", opened at once"_s : QString())));
            if (opened && loss.command.contains("-wal"_L1))
                continue; // what it held can be read by nobody who comes later
            Kitchen kitchen;
            OtherUser annas({u"local"_s, kitchen.folder}, {u"obey"_s});
            ASSERT_EQ(annas.ask(u"sql UPDATE T SET a = a"_s), u"yes"_s);
            kitchen.shell(loss.command);
            const QString place = kitchen.home.filePath(loss.place);
            EXPECT_TRUE(!opened || contentOf(place) == loss.content);
            annas.kill();
            kitchen.maria.database.close();
            EXPECT_EQ(contentOf(place), loss.content);
        }
    }
}

TEST(LocalFiles, LinksLeadToTheSameLocks)
{
    for (const QString &link :
         {u"ln -s data other"_s, u"mkdir other && ln -s ../data/Corvane.sqlite other/Corvane.sqlite"_s,
          u"mkdir real && ln -s ../data/Corvane.sqlite real/Corvane.sqlite && ln -s real other"_s}) {
        SCOPED_TRACE(qPrintable(link));
        Kitchen kitchen;
        kitchen.shell(link);
        OtherUser annas({u"local"_s, kitchen.home.filePath(u"other"_s)}, {u"obey"_s});
        ASSERT_EQ(annas.ask(u"table T"_s), u"yes"_s);
        EXPECT_FALSE(kitchen.maria.locks().tryLockTable(u"T"_s));
        kitchen.shell(u"rm -r other && mkdir other && cp backup other/Corvane.sqlite"_s);
        EXPECT_TRUE(annas.ask(u"sql DELETE FROM T"_s).contains("other/Corvane.sqlite"_L1))
            << "it leads elsewhere now";
        EXPECT_EQ(contentOf(kitchen.folder), u"old yesterday today ok"_s);
    }
}

TEST(LocalFiles, ALockFileThatIsNoLongerAtItsPlaceLocksNothing)
{
    for (const char *command : {"rm data/Corvane.lck", "touch new && mv new data/Corvane.lck",
                                "mv data/Corvane.lck elsewhere && ln -s ../elsewhere data/Corvane.lck"}) {
        SCOPED_TRACE(command);
        Kitchen kitchen;
        LockManager &locks = kitchen.maria.locks();
        ASSERT_TRUE(locks.tryLockRecord(u"T"_s, {1}));
        kitchen.shell(QString::fromLatin1(command));
        EXPECT_TRUE(fails([&] { locks.tryLockRecord(u"T"_s, {2}); }, ErrorCode::FileReplaced,
                          kitchen.folder + "/Corvane.lck"_L1));
        EXPECT_EQ(errorOf([&] { locks.tryOpenExclusive(u"T"_s); }), ErrorCode::FileReplaced);
        locks.unlockRecord(u"T"_s, {1});
    }
    Kitchen kitchen;
    kitchen.maria.database.close();
    kitchen.shell(u"rm data/Corvane.lck && touch elsewhere && ln -s ../elsewhere data/Corvane.lck"_s);
    EXPECT_EQ(errorOf([&] { kitchen.maria.connection(); }), ErrorCode::CannotOpen) << "a link is not followed";
}

TEST(LocalFiles, ADatabaseKeepsItsNumberWhereverItGoesAndGetsOneIfItHasNone)
{
    Kitchen kitchen;
    const QString identity = kitchen.maria.database.identity();
    kitchen.shell(u"mkdir other && cp data/Corvane.sqlite other"_s);
    TestUser anna(QStringList{u"local"_s, kitchen.home.filePath(u"other"_s)});
    EXPECT_EQ(anna.database.identity(), identity);
    anna.execute(u"PRAGMA application_id = 0"_s); // as other programs make it
    anna.database.close();
    anna.connection();
    EXPECT_NE(rowsOf(anna.database, u"PRAGMA application_id"_s), QStringList{u"0"_s});
    EXPECT_NE(anna.database.identity(), identity);
}
