#include "tests/engine/storetest.h"
#include "tests/support/otheruser.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace Engine;

// Two programs that come to a database at the same moment, again and again.

namespace {

int races() { return timesByHand(20); }

// The two of them, at one place; each comes, writes and goes at its own pace, and says what it found last.
struct Race
{
    QTemporaryDir home;
    OtherUser maria;
    OtherUser anna;

    explicit Race(Store store)
        : maria({QString::fromLatin1(storeName(store)).toLower(), home.path()}, {u"visit"_s})
        , anna({QString::fromLatin1(storeName(store)).toLower(), home.path()}, {u"visit"_s})
    {
    }

    void run(const QString &place) // a folder, or the name of a database
    {
        maria.tell(place);
        anna.tell(place);
        const QString identity = maria.ask({});
        EXPECT_FALSE(identity.contains(u' ')) << identity.toStdString();
        EXPECT_EQ(anna.ask({}), identity);
    }
};

QStringList contentOf(const QString &folder)
{
    TestUser user(QStringList{u"local"_s, folder});
    return rowsOf(user.database,
                  u"SELECT count(*) FROM T UNION ALL SELECT integrity_check FROM pragma_integrity_check"_s);
}

} // namespace

TEST(FilesRace, TwoProgramsMakeOneNewDatabaseOrComeToACopyOfIt)
{
    for (const char *journal : {"wal", "delete"}) {
        SCOPED_TRACE(journal);
        qputenv("TALLYMERE_TEST_NETWORK", QLatin1StringView(journal) == "delete"_L1 ? "1" : "");
        Race race(Store::Local);
        qunsetenv("TALLYMERE_TEST_NETWORK");
        const QDir home(race.home.path());
        for (int i = 0; i < races() && !testing::Test::HasFailure(); ++i) {
            const QString made = home.filePath(u"made-%1"_s.arg(i));
            const QString copied = home.filePath(u"copied-%1"_s.arg(i));
            QDir().mkpath(made);
            QDir().mkpath(copied);
            race.run(made);
            EXPECT_TRUE(QFile::copy(made + "/Corvane.sqlite"_L1, copied + "/Corvane.sqlite"_L1));
            race.run(copied);
            EXPECT_EQ(contentOf(made), (QStringList{u"4"_s, u"ok"_s}));
            EXPECT_EQ(contentOf(copied), (QStringList{u"8"_s, u"ok"_s}));
            for (const QString &folder : {made, copied})
                EXPECT_EQ(QDir(folder).entryList({u"*replaced*"_s}, QDir::Files), QStringList());
        }
    }
}

TEST(ServerRace, TwoProgramsMakeOneNewDatabase)
{
    Race race(Store::Remote);
    for (int i = 0; i < (races() + 4) / 5 && !testing::Test::HasFailure(); ++i) {
        const QString name = u"race_%1_%2"_s.arg(QCoreApplication::applicationPid()).arg(i);
        race.run(name);
        dropTestDatabase(name);
    }
}
