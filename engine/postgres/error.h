#pragma once

#include "engine/values/error.h"

#include <QByteArray>

namespace Engine {

// The error that the server reports with an SQLSTATE, in the engine's terms. The words are the server's own, the
// detail names the key of a violation.
// Where a lock was in the way, "holder" tells whose: " (anna on kitchen-2)".
EngineError postgresError(const QByteArray &sqlState, const QString &words, const QString &detail,
                          const QString &location, const QString &holder = {});

// Whether connecting failed because the server has no database of the name.
bool isMissingDatabase(const EngineError &error);
// Whether creating a database failed because somebody else has just created it: depending on the moment, the server
// finds the database or stumbles over its name in the catalog.
bool isExistingDatabase(const EngineError &error);

EngineError connectionLost(const QString &location, const QString &words);
EngineError handedOnSessions(const QString &location); // by a pooler, from transaction to transaction
EngineError answerLost(const QString &location, const QString &words);

} // namespace Engine
