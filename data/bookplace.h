#pragma once

#include <optional>
#include <QDateTime>
#include <QString>
#include <QStringList>

namespace Engine {
class Database;
}

// Books that are being copied to another place, or have moved there.

namespace Tallymere {

// Books that have gone to another place. Here they are only read, until they are taken up again.
struct MovedBooks
{
    QString place; // as messages call it
    QDateTime at;
    QString by;

    QString text(const QString &here) const; // for whoever opens them
};

std::optional<MovedBooks> movedBooks(Engine::Database &database);
// From now on the store itself refuses every write of anybody to any table, and says where the books are now. Within a
// transaction.
void sendBooksAway(Engine::Database &database, const QString &place);
// Undoes that. Returns false where the books have not moved.
bool takeBooksUp(Engine::Database &database);

// A copy that has not come to its end: nobody opens it as books.
struct UnfinishedCopy
{
    QString source; // as messages call it
    QString sourceIdentity;
    QDateTime begun;
    QString by;
};

std::optional<UnfinishedCopy> unfinishedCopy(Engine::Database &database);
void beginCopy(Engine::Database &copy, Engine::Database &source);
void endCopy(Engine::Database &copy);
void requireWholeBooks(Engine::Database &database); // throws EngineError (CannotOpen)

// Its tables without the marks of these.
QStringList tablesOfBooks(Engine::Database &database);

} // namespace Tallymere
