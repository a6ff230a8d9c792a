#pragma once

#include "engine/store/driver.h"
#include "engine/store/lockmanager.h"
#include "engine/values/value.h"

#include <QByteArray>
#include <QList>
#include <set>
#include <utility>

namespace Engine {

class PostgresConnection;

// Who the session of a connection belongs to, by what the server tells of it. Empty texts for what it keeps back.
// The time is in seconds since 1970, empty where it is not known.
LockOwner sessionOwner(const char *applicationName, const char *role, const char *address, const char *since);

// Advisory locks of the connection's own session. For each table there are three numbers made of its name: one for
// being open, one for the table lock, which whoever locks a record shares, and one for the records. Beside each table
// and record lock stands one more that keeps nobody out: its second number is the time, for those who ask since when.
class PostgresLocks final : public LockManager
{
public:
    explicit PostgresLocks(PostgresConnection &connection)
        : m_connection(connection)
    {
    }

    std::optional<LockOwner> ownerOf(const QString &table) override;
    std::optional<LockOwner> ownerOf(const QString &table, const QList<qint64> &key) override;
    Answer<std::optional<LockOwner>> askOwnerOf(const QString &table, const QList<qint64> &key) override;
    StatementPtr askShare(const QString &table) override;
    bool areLost() const override;
    int losses() const override { return m_losses; }

    // After the connection was lost: false while somebody still believes in a lock that went with it. Once it is made
    // anew, what went with the old one is forgotten, and the shared locks of open tables are taken again.
    bool mayReconnect() const;
    void reconnected();
    // Whether this connection alone keeps everybody from changing what the table consists of, and does not itself.
    bool isOpenShared(const QString &table) const;
    // Gives back what could not be given back within a failed transaction.
    void releaseDeferred() noexcept;

    // What others can tell a session by: "anna@kitchen-2/4711".
    static QString applicationName(const QString &user);

protected:
    bool changeOpen(const QString &table, OpenMode from, OpenMode to, bool isToBeDescribed) override;
    QStringList acquireShared(const QStringList &tables) override;
    qint64 placeOf(const QString &table, const QList<qint64> &key) const override;
    bool acquireRecord(const QString &table, const Place &place) override;
    void releaseRecord(const QString &table, const Place &place) noexcept override;
    bool acquireTable(const QString &table, qint64 since) override;
    void releaseTable(const QString &table, const Held &held) noexcept override;

private:
    StatementPtr bound(const QString &sql, const QList<qint64> &numbers);
    bool ask(const QString &sql, const QList<qint64> &numbers, const Along &along = {});
    void askWith(Statement &lock, const Along &along);
    Answer<std::optional<LockOwner>> askHolder(const QString &table, std::optional<qint64> place);
    Answer<std::optional<LockOwner>> askOwner(const QString &sql, const QList<Value> &parameters);
    void release(const QString &sql, const QList<qint64> &numbers) noexcept;

    struct Deferred
    {
        QString sql;
        QList<qint64> numbers;
    };

    PostgresConnection &m_connection;
    QList<Deferred> m_deferred;
    std::set<std::pair<QString, qint64>> m_coveredRecords; // by a table that is open for this connection alone
    int m_losses = 0;
};

} // namespace Engine
