#pragma once

#include <QDateTime>
#include <QString>

namespace Engine {
class Database;
}

namespace Tallymere {

// The backup that was made last of a database. It knows of those that this system has made; a backup itself does not hold
// its own.
struct LastBackup
{
    QDateTime made; // invalid: none is known
    QString by;
};

LastBackup lastBackup(Engine::Database &database);
void rememberBackup(Engine::Database &database); // made now, by the session's user

} // namespace Tallymere
