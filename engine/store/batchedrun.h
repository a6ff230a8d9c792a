#pragma once

#include "engine/store/database.h"

#include <memory>
#include <optional>
#include <QStringList>

namespace Engine {

// A run of many small steps in one transaction, such as an import: what it reads from tables that it does not write is read
// once, as it was when it was first asked for, and what it writes (Connection::write) does not wait for its answer where the
// store can do that. A failure comes with a later statement, then, and not where it has happened: whoever wants to tell which
// step it was does the run once more without.
class BatchedRun
{
public:
    // The tables that are only read.
    BatchedRun(Database &database, const QStringList &tables);
    ~BatchedRun();
    BatchedRun(const BatchedRun &) = delete;
    BatchedRun &operator=(const BatchedRun &) = delete;

private:
    Connection &m_connection;
    const std::unique_ptr<RunMemory> m_memory;
    QStringList m_opened; // for the time of the run, so that opening them again asks nobody
};

// What a run knows of tables that nobody else writes to while it lasts, so that it need not ask for each record. Outside of a
// run nothing is known.
namespace RunValues {

// Which of these values stand in a field.
void learn(Connection &connection, const QString &table, const QString &field, const QStringList &values);
std::optional<bool> isTaken(Connection &connection, const QString &table, const QString &field,
                            const QString &value);
void written(Connection &connection, const QString &table, const QString &field, const QString &value);

// The keys from one up to another, which is not among them, that no table of a kind has.
struct Gap
{
    qint64 from = 0;
    qint64 to = 0;
};
Gap gap(Connection &connection, const QString &keyField);
void setGap(Connection &connection, const QString &keyField, Gap gap);

} // namespace RunValues

} // namespace Engine
