#pragma once

#include <QString>
#include <QStringList>

namespace Engine {
class Database;
}

namespace Tallymere {

class Progress;

// A copy of the database in one file, whatever the store: a SQLite database. Of one moment, while others go on working.
// The database remembers that it was made (data/lastbackup.h).
// It is written beside its name and verified before it gets it. Throws RuleError when the file exists, when the disk will not
// hold it and when the copy is not sound; what the engine throws; and what a step of the progress throws. Nothing is left then.
void backUp(Engine::Database &database, const QString &file, Progress &progress);

// A backup into a folder that holds no database. Verified before it is put there. Returns the tables (as messages call
// them) of an older release, which the next opening brings up to date. Throws as backUp() does, and RuleError for a backup of
// a newer release, which this one would take fields from.
QStringList restoreIntoFolder(const QString &file, const QString &folder, Progress &progress);
// Likewise into a database, of either store, that holds no tables.
QStringList restoreInto(Engine::Database &database, const QString &file, Progress &progress);

} // namespace Tallymere
