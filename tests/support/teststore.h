#pragma once

#include "engine/store/database.h"
#include "engine/store/lockmanager.h"
#include "engine/store/session.h"

#include <memory>
#include <QStringList>
#include <QTemporaryDir>

enum class Store { Local, Remote };

inline const char *storeName(Store store) { return store == Store::Local ? "Local" : "Remote"; }

// Another user of a test's database: a session and a connection of its own.
struct TestUser
{
    Engine::Session session;
    Engine::Database database;

    TestUser(const QString &user, const QString &databaseName);
    explicit TestUser(const QStringList &place); // "anna", at the place() of a store
    void useTestServer(const QString &remoteName);
    Engine::Connection &connection() { return database.connection(); }
    Engine::LockManager &locks() { return connection().locks(); }
    void execute(const QString &script) { connection().execute(script); }
    // Of a user, or of all, on the database of the server: as when their connections are lost.
    void endOtherSessions(const QString &user = QStringLiteral("%"));
};

// A statement with its values in the places %1, %2 and so on.
template <typename... Values> QString filledIn(QString sql, const Values &...values)
{
    ((sql = sql.arg(values)), ...);
    return sql;
}

// All rows of a statement, one text each: "1|2.5|abc", nulls empty.
QStringList rowsOf(Engine::Database &database, const QString &sql);

// All rows of tables, those of each behind its name and in the order of their texts.
QStringList contentsOf(Engine::Database &database, const QStringList &tables);

QString testServerAddress(); // of a cluster several: TALLYMERE_TEST_ADDRESS

// Drops a database of the test server, if it is there. Throws EngineError when somebody keeps it open for good.
void dropTestDatabase(const QString &name);

// A fresh, empty database for one test, in a folder or on the test server; gone with the object.
// The server is the one whose folder TALLYMERE_TEST_POSTGRES names (see postgres.sh); without it a remote store
// throws std::runtime_error.
class TestStore
{
public:
    explicit TestStore(Store store);
    ~TestStore();
    Q_DISABLE_COPY(TestStore)

    Store store() const { return m_store; }
    Engine::Session &session() { return m_user->session; }
    Engine::Database &database() { return m_user->database; }
    Engine::Connection &connection() { return database().connection(); }
    Engine::LockManager &locks() { return connection().locks(); }
    std::unique_ptr<TestUser> anotherUser(const QString &user = QStringLiteral("anna"));

    QStringList place() const; // two words of a command line that lead another program to the database
    QString directory() const { return m_folder.path(); } // of a local store's database
    QString remoteName() const { return m_remoteName; } // of a remote store's database
    // SQL text as it stands, but for the values that are filled in.
    template <typename... Values> void execute(const QString &script, const Values &...values)
    {
        connection().execute(filledIn(script, values...));
    }
    void fill(const QString &table, const QString &values,
              int rows); // values of i = 1 to rows: "T (A, B)", "i, i % 4"
    template <typename... Values> QStringList rows(const QString &sql, const Values &...values) // as rowsOf()
    {
        return rowsOf(database(), filledIn(sql, values...));
    }
    // The same in one text: "1|2.5|abc 2||def".
    template <typename... Values> QString found(const QString &sql, const Values &...values)
    {
        return rows(sql, values...).join(u' ');
    }
    QStringList tables(); // their names
    void admit(bool allowed); // new connections to a remote store

private:
    Store m_store;
    QTemporaryDir m_folder;
    QString m_remoteName;
    std::unique_ptr<TestUser> m_user;
};
