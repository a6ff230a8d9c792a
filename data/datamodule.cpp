#include "data/datamodule.h"

#include "base/connectiondecision.h"
#include "base/dataversion.h"
#include "base/stores.h"
#include "base/trace.h"
#include "data/layouts.h"
#include "data/seeds.h"
#include "data/texts.h"
#include "engine/store/tablelocks.h"
#include "engine/values/error.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>

using namespace Qt::StringLiterals;

namespace Tallymere {

TDataModuleTallymere::TDataModuleTallymere(SettingsStore &settings, Prompts &prompts, DataModuleOptions options)
    : m_settings(settings)
    , m_prompts(prompts)
    , m_options(std::move(options))
    , m_session(u"SessionTallymere"_s, bothStores())
    , m_database(m_session, databaseName)
    , m_tempSession(u"SessionTempTallymere"_s, bothStores())
    , m_tempDatabase(m_tempSession, u"TempTallymere-%1"_s.arg(QCoreApplication::applicationPid()))
    , m_memory(Engine::Database::inMemory(m_tempSession))
    , m_reportParameters(*m_memory, Layouts::reportParameters().name)
    , m_config(m_database, u"Config"_s)
    , m_company(m_database, Layouts::company().name)
    , m_hist(m_database, Layouts::iHist().name)
    , m_balance(m_database, Layouts::iBalance().name)
    , m_warehouse(m_database, Layouts::warehse().name)
    , m_itemCtl(m_database, Layouts::itemCtl().name)
    , m_custCtl(m_database, u"CustCtl"_s)
    , m_history(m_database, u"History"_s)
{
    m_session.onStartup = [this](Engine::Session &session) { startSession(session); };
    m_session.waitFor = m_options.waitFor;
    m_session.clock = m_options.clock;
    m_session.tableTitle = Layouts::titleOf;
    m_database.onBeforeConnect = [this](Engine::Database &database) { beforeConnect(database); };
    m_database.createIfMissing = m_options.createDatabase;
    m_tempSession.onStartup = [this](Engine::Session &session) {
        qCDebug(trace) << "Opening SessionTempCorvaneAR...";
        session.privateDirectory = m_session.privateDirectory;
    };
    m_tempDatabase.createIfMissing = true;
    m_tempDatabase.onBeforeConnect = [this](Engine::Database &database) {
        qCDebug(trace) << "Setting DataBaseTempCorvaneAR session name...";
        qCDebug(trace) << "Setting DatabaseTempTallymere directory...";
        database.directory = m_tempSession.privateDirectory;
    };
    setCurrentUser(m_options.currentUser);
    start();
}

TDataModuleTallymere::~TDataModuleTallymere()
{
    m_reportParameters.close();
    if (m_tempDatabase.isOpen()) {
        m_tempDatabase.close();
        const QString stem = QDir(m_tempDatabase.directory).filePath(m_tempDatabase.name());
        QFile::remove(stem + u".sqlite"_s);
        QFile::remove(stem + u".lck"_s);
    }
}

QList<Engine::TableReader *> TDataModuleTallymere::ownedTables()
{
    return {&m_reportParameters, &m_config,  &m_company, &m_hist,   &m_balance,
            &m_warehouse,        &m_itemCtl, &m_custCtl, &m_history};
}

void TDataModuleTallymere::setCurrentUser(const QString &user)
{
    m_currentUser = user;
    m_session.applicationUser = user;
}

void TDataModuleTallymere::startSession(Engine::Session &session)
{
    m_mode = sessionTallymereStartup(session, m_settings);
    if (!m_options.dataFolder.isEmpty()) {
        session.type = Engine::SessionType::Local;
    } else if (!m_options.server.isEmpty()) {
        session.type = Engine::SessionType::Remote;
        session.remoteAddress = m_options.server;
        useServerAccount(session);
    }
    session.readsFromStandby = m_options.readsFromStandby.value_or(session.readsFromStandby)
        && session.type == Engine::SessionType::Remote;
}

Engine::Database &TDataModuleTallymere::readingDatabase()
{
    if (!m_session.readsFromStandby)
        return m_database;
    if (m_reading)
        m_reading->connection().renewReading();
    else
        m_reading = std::make_unique<Engine::Database>(m_database, m_database.connection().openReading(m_database));
    return *m_reading;
}

void TDataModuleTallymere::beforeConnect(Engine::Database &database)
{
    if (!m_options.dataFolder.isEmpty()) {
        m_mode = fileServerMode;
        database.directory = m_options.dataFolder;
    } else if (!m_options.server.isEmpty()) {
        m_mode = clientServerMode;
        database.remoteName = m_options.serverDatabase.isEmpty() ? QString(databaseName) : m_options.serverDatabase;
    } else {
        m_mode = databaseTallymereBeforeConnect(database, m_settings, m_prompts);
    }
}

void TDataModuleTallymere::openReportParameters()
{
    if (!m_memory->tableExists(m_reportParameters.name()))
        m_memory->createTable(Layouts::reportParameters());
    m_reportParameters.open();
}

// Without it this is a database of something else, and the inventory's tables have no business there.
void TDataModuleTallymere::requireHost()
{
    if (m_database.tableExists(m_config.name()))
        return;
    throw Engine::EngineError(
        Engine::ErrorCode::NoSuchTable,
        DataTexts::tr("The configuration of the host application is missing in %1. Open the company "
                      "in the host application once, or choose another database.")
            .arg(m_database.connection().location()));
}

// Two users who start for the first time at the same moment would both make the tables. The second waits for the
// first, for ten seconds at most: a start that hangs must not keep everybody else out.
void TDataModuleTallymere::awaitOtherStart(Engine::TableLocks &locks) const
{
    constexpr int mostAttempts = 100;
    Engine::Attempts attempts(mostAttempts, [this] { m_session.pause(); });
    try {
        locks.take(u"(start)"_s, [&](const Engine::EngineError &) { return attempts.again(); }); // no table's name
    } catch (const Engine::EngineError &error) {
        if (!error.isHeldByOthers())
            throw;
    }
}

// What an older release has left is not brought up to date any more, and might lack a table.
void TDataModuleTallymere::tellMoved()
{
    const QString text = m_moved->text(m_database.connection().location());
    for (const Engine::TableLayout *layout : Layouts::applied())
        if (!m_database.tableExists(layout->name))
            Engine::raise(Engine::ErrorCode::MovedAway, text);
    m_prompts.warn(text);
}

// A new index of a long table takes its time.
void TDataModuleTallymere::applyLayout(const Engine::TableLayout &layout)
{
    if (!m_database.tableExists(layout.name))
        return m_database.createTable(layout);
    if (!m_database.differs(layout))
        return;
    if (!m_options.changeBeside)
        return m_database.restructureTable(layout);
    m_options.changeBeside(DataTexts::tr("Bringing the table %1 up to date").arg(Layouts::titleOf(layout.name)),
                           m_database,
                           [&layout](Engine::Database &database) { database.restructureTable(layout); });
    m_database.connection().forgetStatements(); // which were made for the table as it was
}

void TDataModuleTallymere::prepareTables()
{
    const QHash<QString, std::function<void()>> seeds{
        {u"Company"_s, [&] { Seeds::refreshOrganization(m_database, m_config, today()); }},
        {u"ARInvCtl"_s, [&] { Seeds::firstLocation(m_database); }},
        {u"Bank"_s, [&] { Seeds::firstBank(m_database); }},
        {u"Currency"_s, [&] { Seeds::firstCurrency(m_database, m_config, m_options.locale); }},
    };
    for (const Engine::TableLayout *layout : Layouts::applied()) {
        applyLayout(*layout);
        if (const auto seed = seeds.find(layout->name); seed != seeds.end())
            seed.value()();
    }
    rememberDataVersion(m_database);
}

void TDataModuleTallymere::start()
{
    openReportParameters();
    Engine::TableLocks locks(m_database);
    awaitOtherStart(locks);
    requireKnownData(m_database); // whoever was waited for may have been a newer release
    requireWholeBooks(m_database);
    m_moved = movedBooks(m_database);
    if (m_options.prepareHost)
        m_options.prepareHost(m_database);
    requireHost();
    m_config.open();
    if (m_moved)
        tellMoved();
    else
        prepareTables();
    m_company.open();
    m_hist.open();
    m_balance.open();
    prepareReportPrinting();
}

void TDataModuleTallymere::prepareReportPrinting()
{
    qCDebug(trace) << "DataModuleTallymere.QuickReportA4";
    m_quickReportA4 = m_options.locale.measurementSystem() != QLocale::ImperialUSSystem;
    if (!m_options.prepareReportPrinting)
        return;
    try {
        m_quickReportA4 = m_options.prepareReportPrinting().value_or(m_quickReportA4);
    } catch (const std::exception &error) {
        // A start must not depend on printers; printing itself reports what is wrong with them.
        qCDebug(trace) << "No printer could be prepared:" << error.what();
    }
}

} // namespace Tallymere
