#include "tests/engine/storetest.h"
#include "tests/support/files.h"

#include <QProcess>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace Engine;

// pgbouncer between the program and the server.

namespace {

struct Pooler : testing::Test
{
    TestStore store{Store::Remote};
    QTemporaryDir home;
    QString folder = home.filePath(u"pooler"_s);
    std::unique_ptr<TestUser> anna = store.anotherUser();
    const QByteArray serverPort = qgetenv("PGPORT");

    ~Pooler() override
    {
        anna.reset();
        qputenv("PGPORT", serverPort);
        run({u"stop"_s, folder});
    }
    static int run(const QStringList &words) { return QProcess::execute(QStringLiteral(POOLER_SCRIPT), words); }
    bool start(const QString &mode)
    {
        chmod(home.path().toLocal8Bit().constData(), 0755);
        const int status = run({u"start"_s, folder, QString::fromLatin1(serverPort), mode});
        EXPECT_TRUE(status == 0 || status == 77);
        if (status == 0)
            qputenv("PGPORT", contentOf(folder + "/port"_L1).trimmed());
        return status == 0;
    }
};

} // namespace

TEST_F(Pooler, ThatKeepsSessionsIsAsGoodAsTheServer)
{
    if (!start(u"session"_s))
        GTEST_SKIP() << "pgbouncer is not installed";
    ASSERT_TRUE(anna->locks().tryLockRecord(u"T"_s, {1}));
    EXPECT_FALSE(store.locks().tryLockRecord(u"T"_s, {1}));
    anna->locks().unlockRecord(u"T"_s, {1});
    EXPECT_TRUE(store.locks().tryLockRecord(u"T"_s, {1}));
    for (int i = 0; i < 2; ++i) {
        const QByteArray port = qgetenv("PGPORT");
        store.anotherUser(u"keeper"_s)->endOtherSessions(u"anna"_s);
        qputenv("PGPORT", port);
        EXPECT_EQ(rowsOf(anna->database, u"SELECT 1"_s), QStringList{u"1"_s});
    }
    // A command that takes its time is asked about over another connection, which must find the right session.
    EXPECT_EQ(rowsOf(anna->database, u"SELECT 2 FROM pg_sleep(0.5)"_s), QStringList{u"2"_s});
}

TEST_F(Pooler, ThatHandsSessionsOnIsRefused)
{
    if (!start(u"transaction"_s))
        GTEST_SKIP() << "pgbouncer is not installed";
    EXPECT_TRUE(fails([&] { anna->connection(); }, ErrorCode::CannotOpen, u"pool_mode = session"_s));
}
