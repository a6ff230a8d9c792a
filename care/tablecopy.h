#pragma once

#include "engine/values/layout.h"

#include <functional>
#include <QtGlobal>

namespace Engine {
class Connection;
class Database;
} // namespace Engine

namespace Tallymere {

// Tells the rows of a table from any others, in whatever order they come.
struct TableDigest
{
    qint64 rows = 0;
    size_t sum = 0;

    bool operator==(const TableDigest &) const = default;
};

inline constexpr int copiedRowsPerStep = 1'000; // of each table, read and then compared

// One table of a store, and the same in another one.
class TableCopy
{
public:
    // The step is told now and then.
    TableCopy(Engine::Connection &from, Engine::Connection &to, const QString &table, std::function<void()> step);

    std::function<void(bool)> onIndexes =
        {}; // told at begin and end of building the indexes, which goes without steps

    const Engine::TableLayout &layout() const { return m_layout; }
    TableDigest digest() const; // of what stands in the source
    bool isThere(const TableDigest &digest) const; // the other store has it already, and the same in it

    // Makes the table with its indexes, takes the rows over and compares what stands there then with what was read.
    // Within a transaction. Throws RuleError when it is not the same.
    TableDigest run() const;

private:
    using Row = QList<Engine::Value>;

    TableDigest walk(Engine::Connection &store, const std::function<void(const Row &)> &take) const;
    void buildIndexes() const;
    void passNumbers(const QString &field) const;
    QString columns(Engine::Connection &store) const;

    Engine::Connection &m_from;
    Engine::Connection &m_to;
    const Engine::TableLayout m_layout;
    const std::function<void()> m_step;
};

// Copies every table of a database, the host's among them, into one that has none yet, of either store, in one
// transaction; and compares afterwards what stands there with what was read, row by row. From a moment (ReadMoment) it is
// one. The step is told now and then. Returns the number of rows. Throws RuleError when the other database holds tables or
// does not hold the same in the end, and what the engine throws; nothing stays of the copy then.
qint64 copyTables(Engine::Database &from, Engine::Database &to, const std::function<void()> &step);

} // namespace Tallymere
