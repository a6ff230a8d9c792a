#pragma once

#include "engine/postgres/dialect.h"
#include "engine/postgres/link.h"
#include "engine/store/driver.h"

#include <map>
#include <QHash>

namespace Engine {

class Database;
class PostgresLocks;
class StandbyReading;

// A database of a server. Record and table locks are advisory locks of the same connection.
class PostgresConnection final : public Connection
{
public:
    explicit PostgresConnection(const PostgresTarget &target); // connects
    ~PostgresConnection() override;

    const Dialect &dialect() const override { return m_dialect; }
    QString location() const override { return m_link->location(); }
    QString identity() override;
    void execute(const QString &script) override;
    bool sendsAhead() const override { return true; }
    void drain() override;
    bool hasEnded() override;
    void begin() override;
    void commit() override;
    void rollback() noexcept override;
    bool inTransaction() const override { return m_link->inTransaction(); }
    std::function<void()> interrupter() override;
    std::unique_ptr<Connection> openMoment(const Database &database, ReadFrom from) override;
    std::unique_ptr<Connection> openReading(const Database &database) override;
    void renewReading() override;
    ReadOrigin origin() const override;
    std::unique_ptr<BulkInsert> bulkInsert(const TableLayout &layout) override;
    std::optional<TableLayout> describe(const QString &table) override;
    QStringList tables() override;
    qint64 size() override;
    QStringList damage(const std::function<void()> &step) override;
    qint64 repair(const TableLayout &table) override;
    void unmake() noexcept override;
    qint64 lastInsertId() override;
    LockManager &locks() override;

    void setMade() { m_isMade = true; } // the database came about with this connection
    // Asks what describe() will give next. What was read is known as long as the table stays open: nobody can change
    // it then.
    void askLayout(const QString &table);
    void forgetLayout(const QString &table); // in lower case, as all here
    void forgetLayouts();
    void tell(Statement &statement); // one of this connection, outside of a transaction: its answer is of no use
    bool isTransactionFailed() const { return m_link->isTransactionFailed(); }
    bool isLost() const;

protected:
    std::unique_ptr<Statement> createStatement(const QString &sql) override;

private:
    std::unique_ptr<PostgresConnection> openReader(PostgresTarget target) const;

    PostgresDialect m_dialect;
    std::shared_ptr<PostgresLink> m_link; // shared with statements that outlive the connection
    std::unique_ptr<PostgresLocks> m_locks;
    std::unique_ptr<StandbyReading> m_reading; // of one that reads from a standby
    QHash<QString, TableLayout> m_layouts;
    std::map<QString, StatementPtr> m_askedLayouts;
    bool m_isMade = false;

    StatementPtr describing(const QString &table);
    std::optional<TableLayout> read(Statement &description) const;
};

} // namespace Engine
