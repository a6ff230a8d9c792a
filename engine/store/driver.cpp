#include "engine/store/driver.h"

#include "engine/store/dialect.h"
#include "engine/store/lockmanager.h"
#include "engine/store/runmemory.h"
#include "engine/values/error.h"
#include "engine/values/storedtext.h"

#include <QHash>
#include <QSet>
#include <type_traits>

namespace Engine {

void Statement::bind(int parameter, const Value &value)
{
    std::visit(
        [&](const auto &held) {
            using T = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                bindNull(parameter);
            else if constexpr (std::is_same_v<T, bool>)
                bindBool(parameter, held);
            else if constexpr (std::is_same_v<T, qint64>)
                bindInt(parameter, held);
            else if constexpr (std::is_same_v<T, double>)
                bindDouble(parameter, held);
            else if constexpr (std::is_same_v<T, QString>)
                bindText(parameter, held);
            else
                bindText(parameter, storedText(held));
        },
        value.storage());
}

Value Statement::valueAt(int column, FieldType type) const
{
    if (isNull(column))
        return {};
    switch (type) {
    case FieldType::Integer:
    case FieldType::SmallInt:
    case FieldType::AutoInc:
        return intAt(column);
    case FieldType::Float:
    case FieldType::Money:
        return doubleAt(column);
    case FieldType::Boolean:
        return intAt(column) != 0;
    case FieldType::Date:
        return dateFromStored(textAt(column));
    case FieldType::DateTime:
        return dateTimeFromStored(textAt(column));
    case FieldType::Text:
    case FieldType::Memo:
        break;
    }
    return textAt(column);
}

// Idle statements by their text, and the statements in use, which outlive the connection if their holder does.
struct Connection::Cache
{
    static constexpr int capacity = 300;

    QHash<QString, std::vector<Statement *>> idle;
    QSet<Statement *> lent;
    int idleCount = 0;

    Statement *take(const QString &sql)
    {
        const auto found = idle.find(sql);
        if (found == idle.end() || found->empty())
            return nullptr;
        Statement *statement = found->back();
        found->pop_back();
        --idleCount;
        return statement;
    }

    void keep(const QString &sql, Statement *statement)
    {
        if (idleCount >= capacity)
            clear(); // texts differ without end (filters typed by users); a fresh start costs less than ageing
        idle[sql].push_back(statement);
        ++idleCount;
    }

    void clear()
    {
        for (const auto &statements : std::as_const(idle))
            qDeleteAll(statements);
        idle.clear();
        idleCount = 0;
    }
};

Connection::Connection()
    : m_cache(std::make_unique<Cache>())
{
}

Connection::~Connection() { clearStatementCache(); }

StatementPtr Connection::prepare(const QString &sql)
{
    return m_run && m_run->covers(sql) ? m_run->prepare(sql) : prepareOwn(sql);
}

void Connection::write(Statement &statement)
{
    if (m_run)
        statement.send();
    else
        statement.execute();
}

std::optional<TableLayout> Connection::layoutOf(const QString &table)
{
    return m_run ? m_run->layoutOf(table) : describe(table);
}

StatementPtr Connection::prepareOwn(const QString &sql)
{
    Statement *statement = m_cache->take(sql);
    if (!statement) {
        statement = createStatement(sql).release();
        statement->m_owner = this;
        statement->m_cacheKey = sql;
    }
    m_cache->lent.insert(statement);
    return StatementPtr(statement);
}

void Connection::clearStatementCache()
{
    m_cache->clear();
    for (Statement *statement : std::as_const(m_cache->lent))
        statement->m_owner = nullptr;
    m_cache->lent.clear();
}

void StatementReturn::operator()(Statement *statement) const
{
    Connection *owner = statement->m_owner;
    if (!owner) {
        delete statement;
        return;
    }
    owner->m_cache->lent.remove(statement);
    try {
        statement->reset();
    } catch (const EngineError &) {
        delete statement; // its answer is of no use to anybody any more
        return;
    }
    owner->m_cache->keep(statement->m_cacheKey, statement);
}

namespace {

class PreparedInsert final : public BulkInsert
{
public:
    PreparedInsert(Connection &connection, const TableLayout &layout)
        : m_connection(connection)
    {
        QStringList names;
        for (const FieldDef &field : layout.fields)
            names << connection.dialect().name(field.name);
        const QStringList marks(layout.fields.size(), QStringLiteral("?"));
        m_insert = connection.prepare(
            QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                .arg(connection.dialect().name(layout.name), names.join(u", "), marks.join(u", ")));
    }

    void add(const QList<Value> &row) override
    {
        for (int field = 0; field < row.size(); ++field)
            m_insert->bind(field, row[field]);
        m_insert->send();
    }
    void finish() override { m_connection.drain(); }

private:
    Connection &m_connection;
    StatementPtr m_insert;
};

} // namespace

std::unique_ptr<BulkInsert> Connection::bulkInsert(const TableLayout &layout)
{
    return std::make_unique<PreparedInsert>(*this, layout);
}

Transaction::Transaction(Connection &connection)
    : m_connection(connection)
    , m_own(!connection.inTransaction())
{
    if (m_own)
        m_connection.begin();
}

Transaction::~Transaction()
{
    if (m_own)
        m_connection.rollback();
}

void Transaction::commit()
{
    if (!m_connection.inTransaction())
        raise(ErrorCode::General,
              Texts::tr("%1 has undone the changes by itself. Try again.").arg(m_connection.location()));
    if (!m_own)
        return;
    m_connection.commit();
    m_own = false;
}

} // namespace Engine
