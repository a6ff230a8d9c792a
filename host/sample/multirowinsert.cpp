#include "host/sample/multirowinsert.h"

#include "engine/store/dialect.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr size_t rowsPerStatement = 50;

} // namespace

MultiRowInsert::MultiRowInsert(Engine::Connection &connection, QString table, QStringList columns)
    : m_connection(connection)
    , m_table(std::move(table))
    , m_columns(std::move(columns))
{
    m_values.reserve(rowsPerStatement * static_cast<size_t>(m_columns.size()));
}

void MultiRowInsert::add(std::initializer_list<Engine::Value> row)
{
    Q_ASSERT(row.size() == static_cast<size_t>(m_columns.size()));
    m_values.insert(m_values.end(), row);
    if (m_values.size() == rowsPerStatement * static_cast<size_t>(m_columns.size()))
        send(rowsPerStatement);
}

void MultiRowInsert::finish()
{
    if (!m_values.empty())
        send(m_values.size() / static_cast<size_t>(m_columns.size()));
    m_full.reset();
}

void MultiRowInsert::send(size_t rows)
{
    Engine::StatementPtr last;
    if (rows == rowsPerStatement && !m_full)
        m_full = m_connection.prepare(statementText(rows));
    if (rows != rowsPerStatement)
        last = m_connection.prepare(statementText(rows));
    Engine::Statement &statement = last ? *last : *m_full;
    int parameter = 0;
    for (const Engine::Value &value : m_values)
        statement.bind(parameter++, value);
    statement.send();
    m_values.clear();
}

QString MultiRowInsert::statementText(size_t rows) const
{
    QStringList names;
    for (const QString &column : m_columns)
        names.append(m_connection.dialect().name(column));
    const QString row = u'(' + QStringList(m_columns.size(), u"?"_s).join(u',') + u')';
    return u"INSERT INTO %1 (%2) VALUES %3"_s.arg(m_connection.dialect().name(m_table), names.join(u','),
                                                  QStringList(static_cast<qsizetype>(rows), row).join(u','));
}

} // namespace Tallymere
