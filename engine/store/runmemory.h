#pragma once

#include "engine/store/batchedrun.h"
#include "engine/store/driver.h"

#include <QHash>
#include <QSet>
#include <QStringList>

namespace Engine {

// What a run has read; see BatchedRun.
class RunMemory
{
public:
    RunMemory(Connection &connection, const QStringList &tables);

    bool covers(const QString &sql); // it only reads, and only from these tables
    StatementPtr prepare(const QString &sql); // one that is covered
    std::optional<TableLayout> layoutOf(const QString &table);

    struct Cell
    {
        bool isNull = true;
        qint64 number = 0;
        double real = 0;
        QString text{};
        FieldType type = FieldType::Memo;
    };
    struct Rows
    {
        QStringList columns;
        std::vector<std::vector<Cell>> rows;
    };
    std::shared_ptr<const Rows> rows(const QString &sql, const QList<Value> &values);

    static RunMemory *of(Connection &connection) { return connection.m_run; } // null outside of a run
    Connection &connection() const { return m_connection; }

    QHash<QString, QHash<QString, bool>> taken; // of fields, whether they are taken
    QHash<QString, RunValues::Gap> gaps; // by the field of the key

private:
    Connection &m_connection;
    QSet<QString> m_tables; // in lower case
    QHash<QString, bool> m_covered;
    QHash<QString, std::optional<TableLayout>> m_layouts;
    using Known = QHash<QString, std::shared_ptr<const Rows>>; // by the values of the parameters
    QHash<QString, Known> m_known; // by statement
    qsizetype m_count = 0;
};

} // namespace Engine
