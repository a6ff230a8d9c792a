#include "base/booksplace.h"

#include "base/settingsstore.h"
#include "engine/postgres/error.h"

#include <QDir>

namespace Tallymere {

namespace {

bool useServer(SettingsStore &settings, const BooksPlace &place)
{
    // Whoever connects wants a folder to be set with a server as well, whichever it is.
    const bool hasFolder = !databaseFolder(settings).isEmpty();
    return settings.setRegString(Settings::Mode, Engine::SessionType::Remote)
        && (hasFolder || settings.setRegString(Settings::Alias, QDir::homePath()))
        && settings.setRegString(Settings::ServerAddress, place.server)
        && settings.setRegString(Settings::Connection, place.link);
}

} // namespace

bool useBooks(SettingsStore &settings, const BooksPlace &place)
{
    if (place.isOnServer())
        return useServer(settings, place);
    return settings.setRegString(Settings::Mode, Engine::SessionType::Local)
        && settings.setRegString(Settings::Alias, QDir(place.folder).absolutePath());
}

bool isWithoutDatabase(const Engine::EngineError &error) { return Engine::isMissingDatabase(error); }

} // namespace Tallymere
