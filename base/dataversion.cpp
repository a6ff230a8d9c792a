#include "base/dataversion.h"

#include "base/texts.h"
#include "engine/store/database.h"
#include "engine/values/error.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

const QString thisRelease =
    QStringLiteral(TALLYMERE_VERSION); // whatever the program that has loaded it calls itself

} // namespace

StoredDataVersion storedDataVersion(Engine::Database &database)
{
    if (!database.tableExists(u"IDataVersion"_s))
        return {};
    const Engine::StatementPtr row = database.connection().prepare(
        u"SELECT DataVersion, ProgramVersion FROM IDataVersion ORDER BY DataVersion DESC"_s);
    if (!row->next())
        return {};
    return {static_cast<int>(row->intAt(0)), row->textAt(1)};
}

QString newerReleaseText(Engine::Database &database, const QString &place)
{
    const StoredDataVersion stored = storedDataVersion(database);
    if (stored.number <= dataVersion)
        return {};
    return BaseTexts::tr(
               "The data in %1 are of a newer release, %2, and this one, %3, would take out what it does not "
               "know. Nothing has been changed. Install that release or a later one to work with them "
               "(data version %4; this release knows %5).")
        .arg(place, stored.release, thisRelease)
        .arg(stored.number)
        .arg(dataVersion);
}

void requireKnownData(Engine::Database &database)
{
    if (const QString text = newerReleaseText(database, database.connection().location()); !text.isEmpty())
        Engine::raise(Engine::ErrorCode::CannotOpen, text);
}

void rememberDataVersion(Engine::Database &database)
{
    if (storedDataVersion(database).number >= dataVersion)
        return;
    database.change([&] {
        const Engine::StatementPtr remember = database.connection().prepare(
            u"INSERT INTO IDataVersion (VersionID, DataVersion, ProgramVersion) VALUES (1, ?, ?) ON CONFLICT "
            "(VersionID) DO UPDATE SET DataVersion = excluded.DataVersion, ProgramVersion = excluded.ProgramVersion"_s);
        remember->bindInt(0, dataVersion);
        remember->bindText(1, thisRelease);
        remember->execute();
    });
}

} // namespace Tallymere
