#pragma once

#include "engine/values/error.h"

#include <optional>
#include <QString>
#include <QStringList>

namespace Engine {

class Connection;

// Tables that the store itself lets nobody write to, whatever program he uses and however long he has had them open: the
// database has gone to another place. What is refused says where (ErrorCode::MovedAway).
namespace WriteStop {

// Both within a transaction.
void set(Connection &connection, const QStringList &tables, const QString &place);
void lift(Connection &connection, const QStringList &tables);

// Keeps everybody else from writing to the tables up to the end of the transaction; reading goes on. Throws Busy.
void holdWriters(Connection &connection, const QStringList &tables);

// Of a store's words that refuse a write: where the database is now.
std::optional<QString> placeIn(const QString &words);
EngineError error(const QString &place, const QString &driverText);

} // namespace WriteStop

} // namespace Engine
