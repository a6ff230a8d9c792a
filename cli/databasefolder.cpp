#include "cli/databasefolder.h"

#include "base/settingsstore.h"
#include "cli/terminal.h"
#include "cli/texts.h"
#include "engine/store/platform.h"
#include "engine/values/error.h"
#include "host/tables/hosttables.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

// The folder of a database in files; empty when the database is on a server, or nowhere yet.
QString folderOf(const CommandContext &context)
{
    if (context.arguments.has(u"data"_s))
        return QDir(context.arguments.value(u"data"_s)).absolutePath();
    if (context.arguments.has(u"server"_s))
        return {};
    if (context.settings.value(Settings::Mode) == Engine::SessionType::Remote)
        return {};
    return databaseFolder(context.settings);
}

void makeFolder(const QString &folder)
{
    if (folder.isEmpty() || QFileInfo(folder).isDir())
        return;
    Engine::requireUtf8Name(folder);
    if (!QDir().mkpath(folder)) {
        throw Engine::EngineError(
            Engine::ErrorCode::CannotOpen,
            Texts::tr("The folder %1 could not be made: %2").arg(folder, Terminal::lastSystemError()));
    }
}

} // namespace

QString requireFolder(const CommandContext &context)
{
    const QString folder = folderOf(context);
    makeFolder(folder);
    return folder;
}

std::unique_ptr<TDataModuleTallymere> openNewDatabase(const CommandContext &context, const QString &organization,
                                                      QString postalFormat)
{
    requireFolder(context);
    // Two-letter formats are kept with a blank after them, as the host writes them.
    postalFormat = postalFormat.leftJustified(3);
    DataModuleOptions options;
    options.createDatabase = true;
    options.prepareHost = [organization, postalFormat](Engine::Database &database) {
        HostTables::createHostTables(database, organization, postalFormat);
    };
    return context.openData(std::move(options));
}

} // namespace Tallymere::Cli
