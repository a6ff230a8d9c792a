#include "host/company.h"

#include "base/connectiondecision.h"
#include "base/initfile.h"
#include "base/stores.h"
#include "engine/records/tablereader.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/values/error.h"
#include "host/texts.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// The start page tells what is wrong; boxes on the way would say it twice.
class NoPrompts final : public Prompts
{
public:
    void inform(const QString &) override { }
    void warn(const QString &) override { }
    void error(const QString &) override { }
    bool confirm(Tallymere::Question, const QString &) override { return false; }
    Answer yesNoCancel(const QString &, const QString &) override { return Answer::Cancel; }
    bool retry(const QString &) override { return false; }
};

QString organization(const SettingsStore &settings)
{
    NoPrompts prompts;
    Engine::Session session(u"SessionHost"_s, bothStores());
    session.onStartup = [&](Engine::Session &starting) { sessionTallymereStartup(starting, settings); };
    Engine::Database database(session, databaseName);
    database.onBeforeConnect = [&](Engine::Database &connecting) {
        databaseTallymereBeforeConnect(connecting, settings, prompts);
    };
    Engine::TableReader config(database, u"Config"_s);
    config.open();
    return config.isEmpty() ? QString() : config.value(u"Organizatn").toText();
}

} // namespace

Company readCompany(const SettingsStore &settings)
{
    Company company;
    const bool remote = settings.value(Settings::Mode) == Engine::SessionType::Remote;
    const QString server = settings.value(Settings::ServerAddress);
    company.location =
        remote ? HostTexts::tr("Server %1").arg(server) : QDir::toNativeSeparators(databaseFolder(settings));
    company.defined = !(remote ? server : databaseFolder(settings)).isEmpty();
    if (!company.defined)
        return company;
    try {
        company.name = organization(settings);
    } catch (const Engine::EngineError &error) {
        company.problem = error.text();
    }
    return company;
}

bool useCompanyFolder(SettingsStore &settings, const QString &folder)
{
    return settings.setRegString(Settings::Mode, Engine::SessionType::Local)
        && settings.setRegString(Settings::Alias, QDir(folder).absolutePath());
}

QString sampleCompanyFolder(const QString &executableFolder)
{
    const QString folder = InitFile(hostInitFile(executableFolder)).value(Settings::SampleData);
    const bool there = !folder.isEmpty() && QFileInfo(folder + "/Corvane.sqlite"_L1).isFile();
    return there ? folder : QString();
}

} // namespace Tallymere
