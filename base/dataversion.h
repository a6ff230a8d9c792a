#pragma once

#include <QString>

namespace Engine {
class Database;
}

namespace Tallymere {

// The number of the layouts that this release gives the tables: one more with each release that changes any of them, so that
// an older one knows that it must not bring them to its own.
inline constexpr int dataVersion = 1;

// The number that a database has, and the release that gave it.
struct StoredDataVersion
{
    int number = 0; // 0: of a release that left none, or no inventory at all
    QString release;
};

StoredDataVersion storedDataVersion(Engine::Database &database); // only reads
// What there is to say where a newer release has brought the tables up to date, which must not be written then; empty where
// none has. The place is what the text calls the database.
QString newerReleaseText(Engine::Database &database, const QString &place);
void requireKnownData(Engine::Database &database); // throws that as EngineError, and has written nothing
// Writes this release's number where the database has a smaller one.
void rememberDataVersion(Engine::Database &database);

} // namespace Tallymere
