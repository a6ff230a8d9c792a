#include "tests/support/teststore.h"

#include "base/stores.h"

#include <QCoreApplication>
#include <QFile>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

// libpq takes the port from the environment, as it does in real use.
void pointToTestServer()
{
    const QString folder = qEnvironmentVariable("TALLYMERE_TEST_POSTGRES");
    if (folder.isEmpty())
        throw std::runtime_error(
            "Set TALLYMERE_TEST_POSTGRES to the folder given to tests/support/postgres.sh start.");
    QFile file(folder + "/port"_L1);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("The test server is not running: there is no file \"port\" in "
                                 + folder.toStdString());
    qputenv("PGPORT", file.readAll().trimmed());
}

QString freshName()
{
    static int count = 0;
    return u"test_%1_%2"_s.arg(QCoreApplication::applicationPid()).arg(++count);
}

} // namespace

QString testServerAddress() { return qEnvironmentVariable("TALLYMERE_TEST_ADDRESS", u"127.0.0.1"_s); }

TestUser::TestUser(const QString &user, const QString &databaseName)
    : session(u"Test"_s, Tallymere::bothStores())
    , database(session, databaseName)
{
    session.applicationUser = user;
}

TestUser::TestUser(const QStringList &place)
    : TestUser(u"anna"_s, u"Corvane"_s)
{
    if (place.value(0) == "local"_L1)
        database.directory = place.value(1);
    else
        useTestServer(place.value(1));
}

void TestUser::useTestServer(const QString &remoteName)
{
    pointToTestServer();
    session.type = Engine::SessionType::Remote;
    session.remoteAddress = testServerAddress();
    session.remoteUser = session.remotePassword = u"zorvadin"_s;
    database.remoteName = remoteName;
}

// Stands for the engine's own answer (linked with --wrap), so that any folder can be one of another computer.
extern "C" bool __real__ZN6Engine17isLocalFileSystemERK7QString(const QString &path);
extern "C" bool __wrap__ZN6Engine17isLocalFileSystemERK7QString(const QString &path)
{
    return qEnvironmentVariableIsEmpty("TALLYMERE_TEST_NETWORK")
        && __real__ZN6Engine17isLocalFileSystemERK7QString(path);
}

void TestUser::endOtherSessions(const QString &user)
{
    // Until a session has ended it holds its locks.
    database.connection().execute(
        u"SELECT pg_terminate_backend(pid, 120000) FROM pg_stat_activity WHERE datname = current_database() "
        "AND pid <> pg_backend_pid() AND backend_type = 'client backend' AND application_name LIKE '%1@%'"_s.arg(
            user));
}

void dropTestDatabase(const QString &name)
{
    TestUser keeper(u"keeper"_s, u"postgres"_s);
    keeper.useTestServer(u"postgres"_s);
    const QString drop = "DROP DATABASE IF EXISTS "_L1 + name;
    try {
        keeper.database.connection().execute(drop);
        return;
    } catch (const std::exception &) {
        // somebody is still connected; FORCE alone would not do, as the server's own vacuum may be among them
    }
    keeper.database.connection().execute(drop + " WITH (FORCE)"_L1);
}

TestStore::TestStore(Store store)
    : m_store(store)
{
    if (store == Store::Remote)
        m_remoteName = freshName();
    m_user = anotherUser(u"maria"_s);
    m_user->database.createIfMissing = true;
    m_user->database.connection();
    m_user->database.createIfMissing = false;
}

TestStore::~TestStore()
{
    m_user.reset();
    if (m_store == Store::Local)
        return;
    try {
        dropTestDatabase(m_remoteName);
    } catch (const std::exception &error) {
        qWarning("The test's database stays behind: %s", error.what());
    }
}

std::unique_ptr<TestUser> TestStore::anotherUser(const QString &user)
{
    auto other = std::make_unique<TestUser>(place());
    other->session.applicationUser = user;
    return other;
}

QStringList TestStore::place() const
{
    if (m_store == Store::Local)
        return {u"local"_s, directory()};
    return {u"remote"_s, remoteName()};
}

void TestStore::fill(const QString &table, const QString &values, int rows)
{
    execute(u"INSERT INTO %1 WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %2) "
            "SELECT %3 FROM n"_s.arg(table, QString::number(rows), values));
}

QStringList TestStore::tables()
{
    return rows(m_store == Store::Local
                    ? u"SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'"_s
                    : u"SELECT tablename FROM pg_tables WHERE schemaname = current_schema()"_s);
}

void TestStore::admit(bool allowed)
{
    TestUser outside(QStringList{u"remote"_s, u"postgres"_s});
    outside.database.connection().execute(
        u"ALTER DATABASE %1 ALLOW_CONNECTIONS %2"_s.arg(m_remoteName, allowed ? u"true"_s : u"false"_s));
}

QStringList rowsOf(Engine::Database &database, const QString &sql)
{
    const Engine::StatementPtr statement = database.connection().prepare(sql);
    QStringList rows;
    while (statement->next()) {
        QStringList values;
        for (int i = 0; i < statement->columnCount(); ++i)
            values.append(statement->valueAt(i, statement->columnType(i)).toText());
        rows.append(values.join(u'|'));
    }
    return rows;
}

QStringList contentsOf(Engine::Database &database, const QStringList &tables)
{
    QStringList all;
    for (const QString &table : tables) {
        QStringList rows = rowsOf(database, "SELECT * FROM "_L1 + table);
        rows.sort();
        all << table << rows;
    }
    return all;
}
