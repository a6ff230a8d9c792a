#include "care/booksite.h"

#include "base/connectiondecision.h"
#include "base/stores.h"
#include "care/texts.h"
#include "data/layouts.h"
#include "engine/store/platform.h"
#include "engine/values/error.h"

#include <cerrno>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Tallymere {

BookAddress BookAddress::fromText(const QString &text)
{
    const auto folder = [](const QString &name) {
        return BookAddress{.folder = name.isEmpty() ? QString() : QDir(name).absolutePath()};
    };
    if (text.startsWith("folder:"_L1))
        return folder(text.mid(7));
    if (text.startsWith("server:"_L1))
        return {.server = text.mid(7)};
    return folder(text);
}

BookSite::BookSite(const BookAddress &address, const SettingsStore &settings, const QString &user)
    : m_session(u"SessionCopy"_s, bothStores())
    , m_database(m_session, databaseName)
{
    sessionTallymereStartup(m_session, settings);
    m_session.applicationUser = user;
    m_session.tableTitle = Layouts::titleOf;
    if (!address.folder.isEmpty()) {
        m_session.type = Engine::SessionType::Local;
        m_database.directory = address.folder;
        return;
    }
    m_session.type = Engine::SessionType::Remote;
    m_session.remoteAddress = address.server;
    m_session.remoteLink = settings.value(Settings::Connection);
    m_database.remoteName = databaseName;
    useServerAccount(m_session);
}

void BookSite::mayMake()
{
    m_database.createIfMissing = true;
    const QString &folder = m_database.directory;
    if (folder.isEmpty() || QFileInfo(folder).isDir())
        return;
    Engine::requireUtf8Name(folder);
    if (!Engine::makeFolder(folder))
        Engine::raise(Engine::ErrorCode::CannotOpen,
                      CareTexts::tr("The folder %1 could not be made: %2").arg(folder, qt_error_string(errno)));
}

} // namespace Tallymere
