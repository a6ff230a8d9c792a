#include "base/connectiondecision.h"
#include "base/formposition.h"
#include "base/settingsstore.h"
#include "base/stores.h"
#include "tests/support/bothstores.h"
#include "tests/support/spokenprompts.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace Tallymere;

// In a settings folder of the test's own.
struct SystemSettingsTest : testing::Test
{
    void SetUp() override
    {
        folder = qEnvironmentVariable("XDG_CONFIG_HOME");
        if (folder.isEmpty())
            GTEST_SKIP() << "XDG_CONFIG_HOME is not set, and the user's own settings must not be touched";
        file = folder + u"/DBIsam.conf"_s;
        QFile::remove(file);
    }

    QString folder;
    QString file;
    SystemSettings settings;
};

TEST_F(SystemSettingsTest, AreKeptForTheUserUnderTheDocumentedNames)
{
    EXPECT_EQ(settings.read(u"Mode"_s, u"Corvane"_s), u""_s);
    ASSERT_TRUE(settings.setRegString(Settings::ServerAddress, u"10.0.0.7"_s));
    ASSERT_TRUE(settings.setRegString(Settings::Alias, u"/data/Küche; a, b=\"c\""_s));
    ASSERT_TRUE(settings.write(u"Alias"_s, u"Cor Vane"_s, u"/spaced"_s));

    const SystemSettings another;
    EXPECT_EQ(another.read(u"Server IP"_s, u"Corvane"_s), u"10.0.0.7"_s);
    EXPECT_EQ(dbisamAlias(another, u"Corvane"_s), u"/data/Küche; a, b=\"c\""_s);
    EXPECT_EQ(dbisamAlias(another, u"Cor Vane"_s), u"/spaced"_s);
    EXPECT_TRUE(QFile::exists(file));
}

TEST_F(SystemSettingsTest, WritingIntoAnImpossiblePlaceIsReported)
{
    ASSERT_TRUE(QDir().mkpath(file)) << "a folder in the place of the file";
    EXPECT_FALSE(settings.setRegString(Settings::Mode, Engine::SessionType::Remote));
    EXPECT_EQ(settings.read(u"Mode"_s, u"Corvane"_s), u""_s);
    QDir().rmdir(file);
}

TEST(Connection, OnlyTheExactLetterMeansClientServer)
{
    for (const auto &mode : {u""_s, u"F"_s, u"c"_s, u"Client"_s, u"C"_s}) {
        MemorySettings settings;
        settings.write(u"Mode"_s, databaseName, mode);
        settings.write(u"Server IP"_s, databaseName, u"10.0.0.7"_s);
        settings.write(u"Connection"_s, databaseName, u"Internet"_s);
        Engine::Session session(u"Main"_s, bothStores());
        EXPECT_EQ(sessionTallymereStartup(session, settings), mode);
        const bool remote = session.type == Engine::SessionType::Remote;
        EXPECT_EQ(remote, mode == u"C"_s) << mode.toStdString();
        EXPECT_EQ(session.remoteAddress, remote ? u"10.0.0.7"_s : u""_s);
        EXPECT_EQ(session.remoteLink == Engine::LinkType::Internet, remote);
        EXPECT_EQ(session.remoteUser, remote ? u"zorvadin"_s : u""_s);
        EXPECT_FALSE(session.privateDirectory.isEmpty());
    }
}

TEST(Connection, DatabaseIsLookedForUnderBothNames)
{
    QTemporaryDir folder;
    const QString notDefined =
        u"error: The Corvane database has not been defined. The application can not continue. "
        "Corvane will now terminate..."_s;
    // The mode, the folders under both names, the one that is taken, and what is said.
    const std::tuple<QString, QString, QString, QString, QString> cases[] = {
        {u"F"_s, folder.path(), u"/elsewhere"_s, folder.path(), {}},
        {u"F"_s, {}, folder.path(), folder.path(), {}},
        {u"F"_s, {}, {}, {}, notDefined},
        {u"F"_s, u"/no/such"_s, folder.path(), u"/no/such"_s,
         u"error: The Corvane database:\n/no/such\ndoes not appear to be valid. Corvane will now terminate..."_s},
        {u"C"_s, u"/on/server"_s, {}, u"/on/server"_s, {}},
        {u"C"_s, {}, u"/spaced"_s, u"/spaced"_s, {}},
        {u"C"_s, {}, {}, {}, notDefined},
    };
    for (const auto &[mode, alias, spacedAlias, taken, said] : cases) {
        MemorySettings settings;
        settings.write(u"Mode"_s, databaseName, mode);
        settings.write(u"Alias"_s, databaseName, alias);
        settings.write(u"Alias"_s, spacedDatabaseName, spacedAlias);
        Engine::Session session(u"Main"_s, bothStores());
        Engine::Database database(session, databaseName);
        SpokenPrompts prompts;
        EXPECT_EQ(databaseTallymereBeforeConnect(database, settings, prompts), mode);
        EXPECT_EQ(database.directory, taken);
        EXPECT_EQ(database.remoteName, mode == u"C"_s ? u"Corvane"_s : u""_s);
        EXPECT_EQ(prompts.told(), said);
    }
}

TEST(FormPositions, ComeBackOrNotAtAll)
{
    constexpr ScreenSetting<QRect> main{u"Main"};
    constexpr ScreenSetting<QRect> other{u"Other"};
    MemorySettings settings;
    saveFormPos(settings, QRect(-20, 30, 640, 480), u"frmItems"_s, main);
    EXPECT_EQ(setFormPos(settings, u"frmItems"_s, main), QRect(-20, 30, 640, 480));
    EXPECT_FALSE(setFormPos(settings, u"frmItems"_s, other));
    for (const auto &damaged : {u"1 2 3"_s, u"1 2 3 x"_s, u"1 2 0 5"_s, u"1949915914 0 1949915914 5"_s}) {
        settings.write(u"Forms/frmItems"_s, u"Main"_s, damaged);
        EXPECT_FALSE(setFormPos(settings, u"frmItems"_s, main)) << damaged.toStdString();
    }
}
