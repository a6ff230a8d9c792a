#include "host/company.h"

#include "base/connectiondecision.h"
#include "base/dataversion.h"
#include "base/initfile.h"
#include "base/noprompts.h"
#include "base/stores.h"
#include "engine/records/tablereader.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/values/error.h"
#include "host/texts.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void readFrom(Engine::Database &database, Company &company)
{
    if (!database.tableExists(u"Config"_s)) {
        const bool isEmpty = database.connection().tables().isEmpty();
        company.books = isEmpty ? Company::Books::None : Company::Books::Unknown;
        company.problem = isEmpty
            ? HostTexts::tr("There are no books of a company in %1.").arg(company.location)
            : HostTexts::tr("The database in %1 is not that of a company.").arg(company.location);
        return;
    }
    company.books = Company::Books::There;
    Engine::TableReader config(database, u"Config"_s);
    config.open();
    if (!config.isEmpty())
        company.name = config.value(u"Organizatn").toText();
    requireKnownData(database);
}

// Where nothing is, books can be made.
Company::Books booksBehind(const SettingsStore &settings, bool remote, const Engine::EngineError &error)
{
    const bool isNone =
        remote ? isWithoutDatabase(error) : !QFileInfo::exists(databaseFolder(settings) + "/Corvane.sqlite"_L1);
    return isNone ? Company::Books::None : Company::Books::Unknown;
}

QString documentsFolder(const QString &name)
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/' + name;
}

} // namespace

void withCompany(const SettingsStore &settings, const std::function<void(Engine::Database &)> &work)
{
    NoPrompts prompts;
    Engine::Session session(u"SessionHost"_s, bothStores());
    session.onStartup = [&](Engine::Session &starting) { sessionTallymereStartup(starting, settings); };
    Engine::Database database(session, databaseName);
    database.onBeforeConnect = [&](Engine::Database &connecting) {
        databaseTallymereBeforeConnect(connecting, settings, prompts);
    };
    work(database);
}

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
        withCompany(settings, [&company](Engine::Database &database) { readFrom(database, company); });
    } catch (const Engine::EngineError &error) {
        company.problem = error.text();
        if (company.books != Company::Books::There) // else its books are there, of a newer release
            company.books = booksBehind(settings, remote, error);
    }
    return company;
}

Company readCompany(const BooksPlace &place)
{
    MemorySettings settings;
    useBooks(settings, place);
    return readCompany(settings);
}

// The name without what folders are told apart by.
QString proposedFolder(const QString &company)
{
    QString name = company.simplified();
    name.remove(QRegularExpression(uR"([/\\:*?"<>|\x00-\x1f])"_s));
    while (name.startsWith(u'.'))
        name.remove(0, 1); // or it would be hidden
    constexpr int longest = 60;
    name = name.left(longest).trimmed();
    return documentsFolder(name.isEmpty() ? u"Corvane"_s : name);
}

QString sampleCompanyHome() { return documentsFolder(HostTexts::tr("Sample Company")); }

QString sampleCompanyFolder(const QString &executableFolder)
{
    const QString folder = InitFile(hostInitFile(executableFolder)).value(Settings::SampleData);
    const bool there = !folder.isEmpty() && QFileInfo(folder + "/Corvane.sqlite"_L1).isFile();
    return there ? folder : QString();
}

} // namespace Tallymere
