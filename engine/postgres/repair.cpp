#include "engine/postgres/connection.h"
#include "engine/store/reservedwords.h"
#include "engine/values/error.h"

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

constexpr int mostLinesOfAPage = 291;

// Copies what can be read of a damaged table into a sound one, page by page, and the lines of a damaged page one by
// one. A page that tells not even its lines counts as many rows as the sound ones hold on average.
class PageSalvage
{
public:
    PageSalvage(PostgresConnection &connection, const QString &source, const QString &copy)
        : m_connection(connection)
        , m_source(source)
        , m_copy(copy)
    {
    }

    qint64 run() // the rows lost
    {
        const qint64 pages = number(
            u"SELECT pg_relation_size(CAST(%1 AS regclass)) / CAST(current_setting('block_size') AS bigint)"_s.arg(
                textLiteral(m_source)));
        qint64 kept = 0;
        qint64 lost = 0;
        qint64 unreadablePages = 0;
        for (qint64 page = 0; page < pages; ++page) {
            if (const qint64 rows = copyRange(page, 0, page + 1, 0); rows >= 0) {
                kept += rows;
                continue;
            }
            int failures = 0;
            for (int line = 1; line <= mostLinesOfAPage; ++line) {
                const qint64 rows = copyRange(page, line, page, line + 1);
                failures += rows < 0 ? 1 : 0;
                kept += rows > 0 ? rows : 0;
            }
            if (failures == mostLinesOfAPage)
                ++unreadablePages;
            else
                lost += failures;
        }
        const qint64 readablePages = pages - unreadablePages;
        const qint64 average = readablePages > 0 ? (kept + readablePages - 1) / readablePages : 1;
        return lost + unreadablePages * std::max<qint64>(average, 1);
    }

private:
    qint64 number(const QString &sql)
    {
        const StatementPtr statement = m_connection.prepare(sql);
        return statement->next() ? statement->intAt(0) : 0;
    }

    // The rows copied, or -1 when one of them cannot be read.
    qint64 copyRange(qint64 fromPage, int fromLine, qint64 toPage, int toLine)
    {
        m_connection.execute(u"SAVEPOINT page"_s);
        try {
            const qint64 rows = insertRange(fromPage, fromLine, toPage, toLine);
            m_connection.execute(u"RELEASE page"_s);
            return rows;
        } catch (const EngineError &error) {
            if (error.isConnectionLost() || error.code() == ErrorCode::DiskFull)
                throw;
            m_connection.execute(u"ROLLBACK TO page"_s);
            return -1;
        }
    }

    qint64 insertRange(qint64 fromPage, int fromLine, qint64 toPage, int toLine)
    {
        const StatementPtr statement = m_connection.prepare(
            u"INSERT INTO %1 SELECT * FROM %2 WHERE ctid >= CAST(? AS tid) AND ctid < CAST(? AS tid)"_s.arg(
                m_copy, m_source));
        statement->bindText(0, u"(%1,%2)"_s.arg(fromPage).arg(fromLine));
        statement->bindText(1, u"(%1,%2)"_s.arg(toPage).arg(toLine));
        return statement->execute();
    }

    PostgresConnection &m_connection;
    QString m_source;
    QString m_copy;
};

bool isSound(PostgresConnection &connection, const QString &name)
{
    try {
        connection.execute("REINDEX TABLE "_L1 + name);
        connection.execute(u"SELECT sum(length(CAST(t AS text))) FROM %1 t"_s.arg(name));
        return true;
    } catch (const EngineError &error) {
        if (error.code() != ErrorCode::Corrupt && error.code() != ErrorCode::KeyViolation
            && error.code() != ErrorCode::General)
            throw;
        return false;
    }
}

} // namespace

// A server verifies the pages that it reads. What an index says of a row is told by amcheck, which only an administrator
// can add to a database.
QStringList PostgresConnection::damage(const std::function<void()> &step)
{
    QStringList found;
    Transaction transaction(*this);
    for (const QString &table : tables()) {
        step();
        execute(u"SAVEPOINT read"_s);
        try {
            prepare(u"SELECT COUNT(t) FROM %1 t"_s.arg(m_dialect.name(table)))->next();
        } catch (const EngineError &error) {
            if (error.code() != ErrorCode::Corrupt && error.code() != ErrorCode::General)
                throw;
            execute(u"ROLLBACK TO read"_s);
            found << error.text();
        }
        execute(u"RELEASE read"_s);
    }
    return found;
}

qint64 PostgresConnection::repair(const TableLayout &table)
{
    const QString name = m_dialect.name(table.name);
    if (isSound(*this, name))
        return 0;
    TableLayout copy = table;
    copy.name = table.name + "_salvaged"_L1;
    const QString copyName = m_dialect.name(copy.name);
    Transaction transaction(*this);
    for (const QString &statement : m_dialect.createTable(copy))
        execute(statement);
    qint64 lost = PageSalvage(*this, name, copyName).run();
    if (const QStringList key = table.primaryFields(); !key.isEmpty()) {
        QStringList same;
        for (const QString &field : key)
            same << u"a.%1 = b.%1"_s.arg(m_dialect.name(field));
        lost += prepare(u"DELETE FROM %1 a USING %1 b WHERE %2 AND a.ctid > b.ctid"_s.arg(copyName,
                                                                                          same.join(" AND "_L1)))
                    ->execute();
    }
    for (const FieldDef &field : table.fields) {
        if (field.type != FieldType::AutoInc)
            continue;
        for (const QString &statement : m_dialect.continueAutoIncrement(table.name, copy.name, field.name))
            execute(statement);
    }
    execute("DROP TABLE "_L1 + name);
    for (const QString &statement : m_dialect.renameTable(copy.name, table.name))
        execute(statement);
    for (const QString &statement : m_dialect.createIndexes(table))
        execute(statement);
    transaction.commit();
    clearStatementCache();
    return lost;
}

} // namespace Engine
