#pragma once

#include "engine/store/driver.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace Tallymere {

// Inserts many rows of one table, several with each statement, without waiting for the answers. Within a
// transaction of the caller; a failure shows at the latest at the caller's Connection::drain(). For rows that are
// known to be right: nothing is checked.
class MultiRowInsert
{
public:
    MultiRowInsert(Engine::Connection &connection, QString table, QStringList columns);

    void add(std::initializer_list<Engine::Value> row); // in the order of the columns
    void finish(); // sends what is left

private:
    void send(size_t rows);
    QString statementText(size_t rows) const;

    Engine::Connection &m_connection;
    QString m_table;
    QStringList m_columns;
    Engine::StatementPtr m_full; // for a full load of rows
    std::vector<Engine::Value> m_values;
};

} // namespace Tallymere
