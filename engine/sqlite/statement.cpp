#include "engine/sqlite/statement.h"

#include "engine/sqlite/connection.h"
#include "engine/sqlite/dialect.h"
#include "engine/sqlite/error.h"
#include "engine/values/storedtext.h"

#include <sqlite3.h>

namespace Engine {

SqliteStatement::SqliteStatement(sqlite3 *db, const QString &sql, const QString &path)
    : m_db(db)
    , m_path(path)
{
    const QByteArray text = sql.toUtf8();
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v3(m_db, text.constData(), static_cast<int>(text.size() + 1), SQLITE_PREPARE_PERSISTENT,
                             &statement, nullptr));
    m_statement.reset(statement);
    m_writes = m_statement && sqlite3_stmt_readonly(m_statement.get()) == 0;
}

void SqliteStatement::check(int resultCode)
{
    if (resultCode != SQLITE_OK)
        throw sqliteError(m_db, resultCode, m_path);
}

void SqliteStatement::requireOwnFile() const
{
    if (m_writes && m_owner && sqlite3_get_autocommit(m_db) != 0)
        static_cast<SqliteConnection *>(m_owner)->requireOwnFile();
}

void SqliteStatement::requireIdle()
{
    if (m_running)
        SqliteStatement::reset();
}

void SqliteStatement::bindNull(int parameter)
{
    requireIdle();
    check(sqlite3_bind_null(m_statement.get(), parameter + 1));
}

void SqliteStatement::bindInt(int parameter, qint64 value)
{
    requireIdle();
    check(sqlite3_bind_int64(m_statement.get(), parameter + 1, value));
}

void SqliteStatement::bindDouble(int parameter, double value)
{
    requireIdle();
    check(sqlite3_bind_double(m_statement.get(), parameter + 1, value));
}

void SqliteStatement::bindBool(int parameter, bool value) { bindInt(parameter, value ? 1 : 0); }

void SqliteStatement::bindText(int parameter, const QString &value)
{
    requireIdle();
    const QByteArray text = value.toUtf8();
    check(sqlite3_bind_text(m_statement.get(), parameter + 1, text.constData(), static_cast<int>(text.size()),
                            SQLITE_TRANSIENT));
}

bool SqliteStatement::next()
{
    if (!m_running)
        requireOwnFile();
    m_running = true;
    const int resultCode = sqlite3_step(m_statement.get());
    m_onRow = resultCode == SQLITE_ROW;
    if (m_onRow)
        return true;
    if (resultCode != SQLITE_DONE) {
        const EngineError error = sqliteError(m_db, resultCode, m_path);
        SqliteStatement::reset();
        throw error;
    }
    SqliteStatement::reset();
    return false;
}

qint64 SqliteStatement::execute()
{
    requireIdle();
    const qint64 before = sqlite3_total_changes64(m_db);
    while (next()) { }
    return sqlite3_total_changes64(m_db) - before;
}

void SqliteStatement::reset()
{
    sqlite3_reset(m_statement.get()); // repeats the code of the last step, which has been reported
    m_running = false;
    m_onRow = false;
}

int SqliteStatement::columnCount() { return sqlite3_column_count(m_statement.get()); }

QString SqliteStatement::columnName(int column)
{
    return QString::fromUtf8(sqlite3_column_name(m_statement.get(), column));
}

bool SqliteStatement::isNull(int column) const
{
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
}

qint64 SqliteStatement::intAt(int column) const { return sqlite3_column_int64(m_statement.get(), column); }

double SqliteStatement::doubleAt(int column) const { return sqlite3_column_double(m_statement.get(), column); }

QString SqliteStatement::textAt(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_statement.get(), column));
    return textFromUtf8({text, sqlite3_column_bytes(m_statement.get(), column)});
}

FieldType SqliteStatement::columnType(int column)
{
    if (const char *declared = sqlite3_column_decltype(m_statement.get(), column)) {
        const FieldType type = SqliteDialect::fieldType(QString::fromUtf8(declared)).type;
        return type == FieldType::Money ? FieldType::Float : type;
    }
    // An expression has the type of its value. A null is most likely a sum of nothing.
    if (!m_onRow)
        return FieldType::Float;
    switch (sqlite3_column_type(m_statement.get(), column)) {
    case SQLITE_INTEGER:
        return FieldType::Integer;
    case SQLITE_TEXT:
        return FieldType::Memo;
    default:
        return FieldType::Float;
    }
}

} // namespace Engine
