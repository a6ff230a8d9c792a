#pragma once

#include <functional>
#include <QString>

namespace Engine {
class Database;
}

namespace Tallymere {

class Progress;

// What becomes of the books where they were: they go on, or they have moved (data/bookplace.h).
enum class Afterwards { GoOn, Moved };

// Copies books, the host's tables among them, into a database of either store that holds none, as of one moment, while
// others work; verifies each table row by row, by the sums of its figures as the stores themselves make them, and has both
// sides checked. What has been verified is told, a line at a time.
//
// A copy that has not come to its end, because of a failure or of a step of the progress that has thrown, is nothing that
// anybody can open; the same again goes on with it and copies what is missing or has changed since.
//
// Moved: what others have written meanwhile is copied as well, while nobody can write or has a document open; under the same
// locks the source begins to refuse writes, and then the copy can be opened.
//
// Throws RuleError and EngineError; where the target holds anything else, before anything has been written.
using TellCopied = std::function<void(const QString &line)>;
void copyBooks(Engine::Database &from, Engine::Database &to, Afterwards afterwards, Progress &progress,
               const TellCopied &tell);

// Lets books that have moved away be written to again, with a note in the host's history. Throws RuleError where they have
// not.
void takeUpAgain(Engine::Database &database, const QString &user);

} // namespace Tallymere
