#include "engine/store/groupedwrites.h"
#include "tests/engine/storetest.h"
#include "tests/support/otheruser.h"

#include <atomic>
#include <fcntl.h>
#include <QDeadlineTimer>
#include <QFile>
#include <QSysInfo>
#include <thread>

using namespace Qt::StringLiterals;
using namespace Engine;

namespace {

// The server notices a death within a second or so; the file system at once.
template <typename Call> bool soon(Call call)
{
    const QDeadlineTimer patience(120'000);
    bool isSo = call();
    for (; !isSo && !patience.hasExpired(); isSo = call())
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    return isSo;
}

struct LocksTest : StoreTest
{
    LockManager &mine = connection.locks();
    std::unique_ptr<TestUser> annasUser = store.anotherUser();
    LockManager &annas = annasUser->locks();
};

} // namespace

TEST_P(LocksTest, WhatTwoUsersMayHoldAtTheSameTime)
{
    const struct Kind
    {
        const char *name;
        bool (*take)(LockManager &);
        void (*free)(LockManager &);
    } kinds[] = {
        {"open", [](LockManager &l) { return l.tryOpenShared(u"Item"_s); },
         [](LockManager &l) { l.closeShared(u"Item"_s); }},
        {"alone", [](LockManager &l) { return l.tryOpenExclusive(u"item"_s); },
         [](LockManager &l) { l.closeExclusive(u"Item"_s); }},
        {"record", [](LockManager &l) { return l.tryLockRecord(u"Item"_s, {5}); },
         [](LockManager &l) { l.unlockRecord(u"ITEM"_s, {5}); }},
        {"another record", [](LockManager &l) { return l.tryLockRecord(u"Item"_s, {6}); },
         [](LockManager &l) { l.unlockRecord(u"Item"_s, {6}); }},
        {"table", [](LockManager &l) { return l.tryLockTable(u"Item"_s); },
         [](LockManager &l) { l.unlockTable(u"Item"_s); }},
        {"another table", [](LockManager &l) { return l.tryLockTable(u"Tax"_s) && l.tryOpenExclusive(u"Tax"_s); },
         [](LockManager &l) { l.unlockTable(u"Tax"_s), l.closeExclusive(u"Tax"_s); }},
    };
    // Rows: what I hold; columns: what she asks for.
    const char *const allowed[] = {
        "101111", // open
        "001111", // alone
        "110101", // record
        "111001", // another record
        "110001", // table
        "111110", // another table
    };
    for (size_t i = 0; i < std::size(kinds); ++i) {
        for (size_t j = 0; j < std::size(kinds); ++j) {
            SCOPED_TRACE(std::string(kinds[i].name) + " against " + kinds[j].name);
            ASSERT_TRUE(kinds[i].take(mine));
            const bool got = kinds[j].take(annas);
            EXPECT_EQ(got, allowed[i][j] == '1');
            if (got)
                kinds[j].free(annas);
            // Oneself is never in the way, but for the one record.
            const bool again = kinds[j].take(mine);
            EXPECT_EQ(again, !(i == j && QLatin1StringView(kinds[i].name).contains("record"_L1)));
            if (again)
                kinds[j].free(mine);
            kinds[i].free(mine);
            EXPECT_TRUE(kinds[j].take(annas)) << "everything was given back";
            kinds[j].free(annas);
        }
    }
}

TEST_P(LocksTest, OfTablesAskedForTogetherThoseAreHeldThatCanBeHad)
{
    ASSERT_TRUE(annas.tryOpenExclusive(u"Tax"_s));
    const QStringList opened = mine.openSharedTogether({u"Item"_s, u"Tax"_s, u"Warehse"_s});
    EXPECT_EQ(opened, connection.sendsAhead() ? QStringList({u"item"_s, u"warehse"_s}) : QStringList());
    EXPECT_EQ(annas.tryOpenExclusive(u"Item"_s), opened.isEmpty());
    for (const QString &table : opened)
        mine.closeShared(table);
    EXPECT_TRUE(annas.tryOpenExclusive(u"Item"_s));
}

TEST_P(LocksTest, RecordsStayLockedWhenTheTableLockAboveThemGoes)
{
    ASSERT_TRUE(mine.tryLockRecord(u"Item"_s, {1}) && mine.tryLockTable(u"Item"_s));
    ASSERT_TRUE(mine.tryLockRecord(u"Item"_s, {2}) && mine.tryLockTable(u"Item"_s));
    mine.unlockTable(u"Item"_s);
    EXPECT_TRUE(mine.holdsTable(u"Item"_s)) << "it was taken twice";
    EXPECT_FALSE(annas.tryLockRecord(u"Item"_s, {3}));
    mine.unlockTable(u"Item"_s);
    for (const qint64 record : {1, 2, 3})
        EXPECT_EQ(annas.tryLockRecord(u"Item"_s, {record}), record == 3) << record;
    mine.unlockRecord(u"Item"_s, {1});
    mine.unlockRecord(u"Item"_s, {2});
    EXPECT_TRUE(annas.tryLockTable(u"Item"_s));
    EXPECT_FALSE(mine.tryLockRecord(u"Item"_s, {1}));
}

TEST_P(LocksTest, KeysOfSeveralFieldsAreRecordsOfTheirOwn)
{
    ASSERT_TRUE(mine.tryLockRecord(u"IBalance"_s, {1, 2}));
    EXPECT_FALSE(annas.tryLockRecord(u"IBalance"_s, {1, 2}));
    EXPECT_TRUE(annas.tryLockRecord(u"IBalance"_s, {2, 1}));
    EXPECT_TRUE(annas.tryLockRecord(u"ItemCtl"_s, {0}));
    EXPECT_TRUE(annas.tryLockRecord(u"IBalance"_s, {-1, 0}));
}

TEST_P(LocksTest, ClosingOneOfTwoOpenTablesKeepsTheOther)
{
    ASSERT_TRUE(mine.tryOpenShared(u"Item"_s));
    ASSERT_TRUE(mine.tryOpenShared(u"Item"_s));
    ASSERT_TRUE(mine.tryOpenExclusive(u"Item"_s));
    mine.closeExclusive(u"Item"_s);
    EXPECT_TRUE(annas.tryOpenShared(u"Item"_s));
    annas.closeShared(u"Item"_s);
    mine.closeShared(u"Item"_s);
    EXPECT_FALSE(annas.tryOpenExclusive(u"Item"_s));
    mine.closeShared(u"Item"_s);
    EXPECT_TRUE(annas.tryOpenExclusive(u"Item"_s));
}

TEST_P(LocksTest, TheHolderIsNamedAndSinceWhen)
{
    const auto bob = store.anotherUser(u"bob"_s);
    LockManager &bobs = bob->locks();
    EXPECT_FALSE(mine.ownerOf(u"Item"_s));
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    ASSERT_TRUE(annas.tryLockRecord(u"Item"_s, {5}));
    ASSERT_TRUE(annas.tryLockRecord(u"Item"_s, {7}));
    ASSERT_TRUE(bobs.tryLockRecord(u"Item"_s, {-6}));
    ASSERT_TRUE(annas.tryLockTable(u"Tax"_s));
    ASSERT_TRUE(bobs.tryLockRecord(u"IBalance"_s, {1, 2}));
    const auto named = [&](const std::optional<LockOwner> &owner) {
        if (!owner)
            return u"-"_s;
        EXPECT_TRUE(QSysInfo::machineHostName().startsWith(owner->host));
        const qint64 since = owner->since.toSecsSinceEpoch();
        EXPECT_TRUE(since >= before && since <= QDateTime::currentSecsSinceEpoch()) << since;
        return owner->user;
    };
    const auto owners = [&](const QList<qint64> &records) { // of items
        QStringList users;
        for (const qint64 record : records)
            users << named(mine.ownerOf(u"item"_s, {record}));
        return users.join(u' ');
    };
    EXPECT_EQ(owners({5, 6, 7, -6}), u"anna - anna bob"_s);
    EXPECT_EQ(named(mine.ownerOf(u"Tax"_s)), u"anna"_s);
    EXPECT_EQ(named(mine.ownerOf(u"tax"_s, {3})), u"anna"_s);
    EXPECT_EQ(named(mine.ownerOf(u"IBalance"_s, {1, 2})), u"bob"_s);
    EXPECT_EQ(named(annas.ownerOf(u"Item"_s)), u"bob"_s) << "oneself is not another user";
    EXPECT_EQ(named(annas.ownerOf(u"Item"_s, {5})) + named(mine.ownerOf(u"Vendor"_s)), u"--"_s);
    annas.unlockRecord(u"Item"_s, {5});
    EXPECT_EQ(owners({5, 7}), u"- anna"_s);
    annas.unlockRecord(u"Item"_s, {7});
    bobs.unlockRecord(u"Item"_s, {-6});
    EXPECT_EQ(named(mine.ownerOf(u"Item"_s)), u"-"_s);
    EXPECT_EQ(named(mine.ownerOf(u"Tax"_s)), u"anna"_s);
    annas.unlockTable(u"Tax"_s);
    ASSERT_TRUE(bobs.tryLockTable(u"Tax"_s));
    EXPECT_EQ(named(mine.ownerOf(u"Tax"_s)), u"bob"_s);
}

// Whoever may read the lock file can lock it, and no note says so.
TEST_P(LocksTest, AStrangerWhoLocksTheFileIsNamed)
{
    if (GetParam() == Store::Remote)
        GTEST_SKIP() << "there is no file";
    QFile file(store.directory() + u"/Corvane.lck"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    struct flock whole = {};
    whole.l_type = F_RDLCK;
    ASSERT_EQ(fcntl(file.handle(), F_OFD_SETLK, &whole), 0);
    EXPECT_FALSE(mine.tryLockTable(u"Item"_s));
    const QString name = u" (process %1) on "_s.arg(QCoreApplication::applicationPid());
    EXPECT_TRUE(has(mine.holderOf(u"Item"_s), name));
    EXPECT_TRUE(mine.holderOf(u"Item"_s, {5}).contains(name));
    file.close();
    EXPECT_TRUE(mine.tryLockTable(u"Item"_s));
    mine.unlockTable(u"Item"_s);
}

TEST_P(LocksTest, AProgramKilledWithinATransactionLeavesNothingBehind)
{
    store.execute(u"CREATE TABLE T (a integer)"_s);
    OtherUser other(store, {u"obey"_s});
    for (const QString &order : {u"open Item"_s, u"record Item 5"_s, u"table T"_s,
                                 GetParam() == Store::Local ? u"sql BEGIN IMMEDIATE"_s : u"sql BEGIN"_s,
                                 u"sql INSERT INTO T VALUES (1)"_s})
        ASSERT_EQ(other.ask(order), u"yes"_s) << order.toStdString();
    EXPECT_FALSE(mine.tryLockRecord(u"Item"_s, {5}));
    EXPECT_FALSE(mine.tryLockTable(u"Item"_s));
    EXPECT_FALSE(mine.tryLockRecord(u"T"_s, {1}));
    EXPECT_FALSE(mine.tryOpenExclusive(u"Item"_s));
    EXPECT_EQ(mine.ownerOf(u"T"_s).value_or(LockOwner()).user, u"anna"_s);
    if (GetParam() == Store::Remote)
        other.tell(u"sql SELECT pg_sleep(3600)"_s); // the server is busy for a client that is gone
    other.kill();
    EXPECT_TRUE(soon([&] { return mine.tryLockRecord(u"Item"_s, {5}); }));
    EXPECT_TRUE(soon([&] { return mine.tryLockTable(u"T"_s); }));
    EXPECT_TRUE(soon([&] { return mine.tryOpenExclusive(u"Item"_s); }));
    Transaction transaction(connection);
    EXPECT_EQ(store.found(u"SELECT count(*) FROM T"_s), u"0"_s);
    store.execute(u"INSERT INTO T VALUES (2)"_s);
    transaction.commit();
}

TEST_P(LocksTest, LocksSurviveARollbackAndAreGivenBackAfterAFailure)
{
    store.execute(u"CREATE TABLE T (a integer)"_s);
    connection.begin();
    ASSERT_TRUE(mine.tryLockRecord(u"T"_s, {1}));
    ASSERT_TRUE(mine.tryLockRecord(u"T"_s, {2}));
    EXPECT_TRUE(errorOf([&] { store.execute(u"INSERT INTO Nowhere VALUES (1)"_s); }));
    mine.unlockRecord(u"T"_s, {2}); // in a transaction that has failed
    connection.rollback();
    EXPECT_FALSE(annas.tryLockRecord(u"T"_s, {1}));
    EXPECT_TRUE(annas.tryLockRecord(u"T"_s, {2}));
}

// Others would take it for free, and read what stood there before.
TEST_P(LocksTest, WhatIsGivenBackInATransactionStaysLockedUntilItsEnd)
{
    for (const bool commits : {true, false}) {
        SCOPED_TRACE(commits);
        connection.begin();
        ASSERT_TRUE(mine.tryLockRecord(u"T"_s, {1}));
        ASSERT_TRUE(mine.tryLockTable(u"U"_s));
        mine.unlockRecord(u"T"_s, {1});
        mine.unlockTable(u"U"_s);
        EXPECT_FALSE(mine.holdsRecord(u"T"_s, {1}) || mine.holdsTable(u"U"_s));
        EXPECT_FALSE(annas.tryLockRecord(u"T"_s, {1}) || annas.tryLockTable(u"T"_s));
        EXPECT_FALSE(annas.tryLockRecord(u"U"_s, {1}));
        EXPECT_TRUE(mine.tryLockRecord(u"T"_s, {1}) && mine.tryLockTable(u"U"_s)) << "it may be taken again";
        mine.unlockRecord(u"T"_s, {1});
        commits ? connection.commit() : connection.rollback();
        EXPECT_TRUE(annas.tryLockTable(u"T"_s));
        EXPECT_FALSE(annas.tryLockTable(u"U"_s)) << "it was taken again";
        annas.unlockTable(u"T"_s);
        mine.unlockTable(u"U"_s);
        EXPECT_TRUE(annas.tryLockTable(u"U"_s));
        annas.unlockTable(u"U"_s);
    }
}

ON_BOTH_STORES(LocksTest);

// Without that the one who waits looks for a free moment now and then, and there is none.
TEST(LocalLocks, ALongRunLetsThoseInWhoWaitToWrite)
{
    TestStore store(Store::Local);
    store.execute(u"CREATE TABLE T (a integer)"_s);
    std::atomic<bool> hasEnded = false;
    std::optional<ErrorCode> failure;
    GroupedWrites writes(store.database());
    writes.groupTime = std::chrono::hours(1);
    writes.awaitedGroupTime = std::chrono::milliseconds(0);
    const StatementPtr insert = store.connection().prepare(u"INSERT INTO T VALUES (1)"_s);
    const auto step = [&] { writes.apply([&](Writes &sink) { sink.send(*insert); }); };
    step();
    std::thread other([&] {
        const auto anna = store.anotherUser();
        const auto insertHers = [&] { anna->execute(u"INSERT INTO T VALUES (2)"_s); };
        failure = errorOf([&] { anna->database.change(insertHers); });
        hasEnded = true;
    });
    while (!hasEnded)
        step();
    other.join();
    EXPECT_FALSE(failure) << "the run has kept her out";
    writes.finish();
    EXPECT_EQ(store.found(u"SELECT COUNT(*) FROM T WHERE a = 2"_s), u"1");
}
