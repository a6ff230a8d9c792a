#pragma once

#include "engine/store/driver.h"

#include <functional>
#include <memory>
#include <QString>

namespace Engine {

class Session;

// One database of a session: in a local session the file "<name>.sqlite" in a folder, in a remote session the
// database "<name>" (in lower case) of a PostgreSQL server. Connects at the first use.
class Database
{
public:
    Database(Session &session, QString name);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    // The same database, over another connection to it.
    Database(Database &other, std::unique_ptr<Connection> connection);

    // A database that lives in memory and goes with the object. Tables of it are made with createTable.
    static std::unique_ptr<Database> inMemory(Session &session);

    // Called before each connecting, after the session's onStartup; sets directory and remoteName.
    std::function<void(Database &)> onBeforeConnect;

    QString directory; // local sessions: the folder
    QString remoteName; // remote sessions: the database's name on the server; empty means the name given above
    // Makes the file, or the database on the server, when it is missing. Otherwise a missing one is CannotOpen.
    bool createIfMissing = false;

    const QString &name() const { return m_name; }
    Session &session() const { return m_session; }
    bool isOpen() const { return m_connection != nullptr; }

    // Connects if that has not been done. Throws CannotOpen, NotADatabase, AccessDenied, ConnectionLost with a
    // message that names the folder, file or server. Never shows a box.
    Connection &connection();
    void close(); // tables of the database must be closed first; their locks go with the connection

    // Does a step as one transaction, or as part of the one that is open. Where somebody's lock on the server keeps the
    // step waiting too long it is undone and done again, as often as record locks are tried; then Busy.
    void change(const std::function<void()> &step);

    // The same for one statement: its commit travels with it.
    void write(const std::function<StatementPtr(Connection &)> &bound);

    // Tells the database from every other one, a few plain letters that stay the same wherever it is reached from. A
    // file bears them from its creation on, and a copy of it bears the same; on a server they are the server's own, so
    // that a database that is restored there is another one.
    QString identity();

    bool tableExists(const QString &table);

    // Creates the table, with its indexes, in one transaction.
    void createTable(const TableLayout &layout);
    // Brings a table to the layout, keeping its rows: fields of the same name keep their values, text is cut to the
    // new size, what does not convert becomes null. One transaction. Needs the table for itself (TableInUse).
    void restructureTable(const TableLayout &layout);
    // True when fields (name, type, size, order) or indexes differ.
    bool differs(const TableLayout &layout);
    // Creates the table, or restructures it when it differs from the layout; with EnsureOneRow, appends an empty row
    // to a table without rows.
    enum class EnsureOneRow { No, Yes };
    void createOrUpdateTable(const TableLayout &layout, EnsureOneRow ensure = EnsureOneRow::No);

    // Verifies and mends a table: rebuilds its indexes, and when rows are unreadable copies those that can be read.
    // Returns the number of rows lost (0 when only indexes were bad). Needs the table for itself.
    qint64 repairTable(const QString &table);

private:
    Session &m_session;
    QString m_name;
    bool m_inMemory = false;
    std::unique_ptr<Connection> m_connection;
};

} // namespace Engine
