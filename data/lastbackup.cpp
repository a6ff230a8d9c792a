#include "data/lastbackup.h"

#include "data/fields.h"
#include "data/layouts.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/values/textsize.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

LastBackup lastBackup(Engine::Database &database)
{
    const Engine::StatementPtr row =
        database.connection().prepare(u"SELECT SavedAt, SavedBy FROM IBackup WHERE BackupID = 1"_s);
    if (!row->next())
        return {};
    return {row->valueAt(0, Engine::FieldType::DateTime).toDateTime(), row->textAt(1)};
}

void rememberBackup(Engine::Database &database)
{
    const int size = Layouts::iBackup().field(Fields::SavedBy)->size;
    database.change([&] {
        const Engine::StatementPtr remember = database.connection().prepare(
            u"INSERT INTO IBackup (BackupID, SavedBy, SavedAt) VALUES (1, ?, ?) "
            "ON CONFLICT (BackupID) DO UPDATE SET SavedBy = excluded.SavedBy, SavedAt = excluded.SavedAt"_s);
        remember->bindText(0, Engine::firstCharacters(database.session().applicationUser, size));
        remember->bind(1, Engine::Value(database.session().now()));
        remember->execute();
    });
}

} // namespace Tallymere
