#include "base/connectiondecision.h"

#include "base/texts.h"
#include "base/trace.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString setting(const SettingsStore &settings, const QString &name)
{
    return getRegString(settings, name, databaseName);
}

void warnNotDefined(Prompts &prompts)
{
    prompts.error(BaseTexts::tr("The Corvane database has not been defined. The application can not continue. "
                                "Corvane will now terminate..."));
}

void locateFiles(Engine::Database &database, const SettingsStore &settings, Prompts &prompts)
{
    database.directory = dbisamAlias(settings, databaseName);
    if (database.directory.isEmpty())
        database.directory = dbisamAlias(settings, spacedDatabaseName);

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
    database.directory = getRegString(settings, u"Alias"_s, databaseName);
    if (database.directory.isEmpty())
        database.directory = getRegString(settings, u"Alias"_s, spacedDatabaseName);
    if (database.directory.isEmpty())
        warnNotDefined(prompts);
}

} // namespace

QString sessionTallymereStartup(Engine::Session &session, const SettingsStore &settings)
{
    session.privateDirectory = QDir::tempPath();
    const QString mode = setting(settings, u"Mode"_s);
    if (mode != clientServerMode) {
        session.type = Engine::SessionType::Local;
        return mode;
    }

    session.type = Engine::SessionType::Remote;
    session.remoteAddress = setting(settings, u"Server IP"_s);
    session.remoteLink =
        setting(settings, u"Connection"_s) == "Internet"_L1 ? Engine::LinkType::Internet : Engine::LinkType::Lan;
    useServerAccount(session);
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
    const QString mode = setting(settings, u"Mode"_s);
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
