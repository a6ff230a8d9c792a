#pragma once

#include <QString>
#include <QStringList>

namespace Engine {
class Database;
}

namespace Tallymere {

class Progress;

// What a refusal of a restore is about, as its column.
namespace RestoreColumn {
inline constexpr QStringView File = u"File";
inline constexpr QStringView Folder = u"Folder";
} // namespace RestoreColumn

// A copy of the database in one file, whatever the store: a SQLite database. Of one moment, while others go on working.
// The database remembers that it was made (data/lastbackup.h).
// It is written beside its name and verified before it gets it. Throws RuleError when the file exists, when the disk will not
// hold it and when the copy is not sound; what the engine throws; and what a step of the progress throws. Nothing is left then.
void backUp(Engine::Database &database, const QString &file, Progress &progress);

// A damaged database in a folder as it stands, page by page, before something is mended in it. Nothing is verified.
void keepDamaged(Engine::Database &database, const QString &file, Progress &progress);

// A backup into a folder that holds no database. Verified before it is put there. Returns the tables (as messages call
// them) of an older release, which the next opening brings up to date. Throws as backUp() does, and RuleError for a backup of
// a newer release, which this one would take fields from. What is restored has a note in the host's history of who did it.
QStringList restoreIntoFolder(const QString &file, const QString &folder, const QString &user, Progress &progress);
// Likewise into a database, of either store, that holds no tables.
QStringList restoreInto(Engine::Database &database, const QString &file, const QString &user, Progress &progress);

} // namespace Tallymere
