#include "base/connectiondecision.h"

#include "base/texts.h"
#include "base/trace.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void warnNotDefined(Prompts &prompts)
{
    prompts.error(BaseTexts::tr("The Corvane database has not been defined. The application can not continue. "
                                "Corvane will now terminate..."));
}

void locateFiles(Engine::Database &database, const SettingsStore &settings, Prompts &prompts)
{
    database.directory = databaseFolder(settings);
    if (database.directory.isEmpty()) {
        warnNotDefined(prompts);
    } else if (!QDir(database.directory).exists()) {
        prompts.error(
            BaseTexts::tr("The Corvane database:\n%1\ndoes not appear to be valid. Corvane will now terminate...")
                .arg(database.directory));
    }
}

void locateOnServer(Engine::Database &database, const SettingsStore &settings, Prompts &prompts)
{
    database.remoteName = databaseName;
    database.directory = databaseFolder(settings);
    if (database.directory.isEmpty())
        warnNotDefined(prompts);
}

} // namespace

QString sessionTallymereStartup(Engine::Session &session, const SettingsStore &settings)
{
    session.privateDirectory = QDir::tempPath();
    const QString mode = settings.getRegString(Settings::Mode, databaseName);
    session.type = Settings::Mode.byDefault;
    takeSetting(mode, session.type);
    if (session.type == Engine::SessionType::Remote) {
        session.remoteAddress = settings.value(Settings::ServerAddress);
        session.remoteLink = settings.value(Settings::Connection);
        session.readsFromStandby = settings.value(Settings::ReadsFromStandby);
        useServerAccount(session);
    }
    return mode;
}

void useServerAccount(Engine::Session &session)
{
    session.remoteUser = u"zorvadin"_s;
    session.remotePassword = u"zorvadin"_s;
}

QString databaseTallymereBeforeConnect(Engine::Database &database, const SettingsStore &settings, Prompts &prompts)
{
    qCDebug(trace) << "About to set the value for cMode...";
    const QString mode = settings.getRegString(Settings::Mode, databaseName);
    qCDebug(trace) << "About to test for the value of cMode...";
    if (mode == clientServerMode) {
        qCDebug(trace) << "Mode is Client Server";
        locateOnServer(database, settings, prompts);
    } else {
        qCDebug(trace) << "Mode is File Server";
        locateFiles(database, settings, prompts);
    }
    return mode;
}

} // namespace Tallymere
