#pragma once

#include "data/transtypes.h"

#include <QStringList>
#include <vector>

namespace Engine {
class Database;
class Writes;
} // namespace Engine

namespace Tallymere {

// Who has saved a document last: whoever posts all that wait may want to know whose they are. Not known of documents that
// were saved before this was kept.
void rememberSaved(Engine::Database &database, TransType type, qint64 document); // by the user of the session
void rememberSaved(Engine::Database &database, TransType type, qint64 document, Engine::Writes &writes);
// Of any of the documents, each once, in alphabetical order.
QStringList lastSavedBy(Engine::Database &database, TransType type, const std::vector<qint64> &documents);

} // namespace Tallymere
