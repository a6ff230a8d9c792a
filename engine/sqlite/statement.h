#pragma once

#include "engine/sqlite/handles.h"
#include "engine/store/driver.h"

namespace Engine {

class SqliteStatement final : public Statement
{
public:
    SqliteStatement(sqlite3 *db, const QString &sql, const QString &path);

    void bindNull(int parameter) override;
    void bindInt(int parameter, qint64 value) override;
    void bindDouble(int parameter, double value) override;
    void bindBool(int parameter, bool value) override;
    void bindText(int parameter, const QString &value) override;

    bool next() override;
    qint64 execute() override;
    void send() override { execute(); }
    void reset() override;

    int columnCount() override;
    QString columnName(int column) override;
    bool isNull(int column) const override;
    qint64 intAt(int column) const override;
    double doubleAt(int column) const override;
    QString textAt(int column) const override;
    FieldType columnType(int column) override;

private:
    void requireIdle(); // SQLite takes bindings only between executions
    void requireOwnFile() const; // before a statement that writes by itself, or begins a transaction
    void check(int resultCode);

    sqlite3 *m_db; // the connection's
    SqliteStatementHandle m_statement;
    QString m_path;
    bool m_writes = false;
    bool m_running = false;
    bool m_onRow = false;
};

} // namespace Engine
