#include "cli/databasefolder.h"

#include "base/settingsstore.h"
#include "host/books/newbooks.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

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

QString requireFolder(const CommandContext &context)
{
    const QString folder = folderOf(context);
    makeBooksFolder(folder);
    return folder;
}

std::unique_ptr<TDataModuleTallymere> openNewDatabase(const CommandContext &context, const QString &organization,
                                                      const QString &postalFormat)
{
    requireFolder(context);
    return context.openData(newBooksOptions(organization, postalFormat));
}

} // namespace Tallymere::Cli
