#pragma once

#include "engine/countedlocks.h"

#include <QByteArray>
#include <QList>

namespace Engine {

class PostgresConnection;

// Advisory locks of the connection's own session. For each table there are three numbers made of its name: one for
// being open, one for the table lock, which whoever locks a record shares, and one for the records.
class PostgresLocks final : public CountedLocks
{
public:
    explicit PostgresLocks(PostgresConnection &connection)
        : m_connection(connection)
    {
    }

    std::optional<LockOwner> ownerOf(const QString &table) override;

    // After the connection was lost: false while somebody still believes in a lock that went with it. The shared
    // locks of open tables are taken again.
    bool mayReconnect() const;
    void reacquireOpen();
    // Gives back what could not be given back within a failed transaction.
    void releaseDeferred() noexcept;

    // What others can tell a session by: "anna@kitchen-2/4711".
    static QString applicationName(const QString &user);

protected:
    bool changeOpen(const QString &table, OpenMode from, OpenMode to) override;
    qint64 placeOf(const QString &table, const QList<qint64> &key) const override;
    bool acquireRecord(const QString &table, qint64 place, bool tableHeld) override;
    void releaseRecord(const QString &table, qint64 place, bool tableHeld) override;
    bool acquireTable(const QString &table) override;
    void releaseTable(const QString &table, const std::set<qint64> &records) override;

private:
    bool ask(const QString &sql, const QList<qint64> &numbers);
    void release(const QString &sql, const QList<qint64> &numbers) noexcept;

    struct Deferred
    {
        QString sql;
        QList<qint64> numbers;
    };

    PostgresConnection &m_connection;
    QList<Deferred> m_deferred;
};

} // namespace Engine
