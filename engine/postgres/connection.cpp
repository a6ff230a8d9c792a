#include "engine/postgres/connection.h"

#include "engine/postgres/error.h"
#include "engine/postgres/locks.h"
#include "engine/postgres/standbyreading.h"
#include "engine/postgres/statement.h"
#include "engine/postgres/store.h"
#include "engine/store/database.h"
#include "engine/store/session.h"

#include <libpq-fe.h>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

PostgresTarget targetOf(const Database &database)
{
    const Session &session = database.session();
    PostgresTarget target;
    target.host = session.remoteAddress;
    target.database = (database.remoteName.isEmpty() ? database.name() : database.remoteName).toLower();
    target.user = session.remoteUser;
    target.password = session.remotePassword;
    target.requireTls = session.remoteLink == LinkType::Internet;
    target.lockWait = session.serverLockWait;
    target.mayTryAgain = [&session](std::chrono::steady_clock::time_point since) {
        return session.mayTryAgain(since);
    };
    target.mayWaitForServer = [&session](std::chrono::steady_clock::time_point since,
                                         std::chrono::milliseconds time) {
        return session.mayTryAgain(since, time);
    };
    target.stayAlive = [&session] { session.stayAlive(); };
    target.serverWait = session.serverWait;
    target.answerWait = session.answerWait;
    target.standbyWait = session.standbyWait;
    target.told = [&session](bool isThere) {
        if (session.serverChanged)
            session.serverChanged(isThere);
    };
    target.applicationName = PostgresLocks::applicationName(session.applicationUser);
    return target;
}

} // namespace

PostgresConnection::PostgresConnection(const PostgresTarget &target)
    : m_link(std::make_shared<PostgresLink>(target))
    , m_locks(std::make_unique<PostgresLocks>(*this))
{
    m_link->mayReconnect = [this] { return m_locks->mayReconnect(); };
    m_link->reconnected = [this] { m_locks->reconnected(); };
}

PostgresConnection::~PostgresConnection()
{
    m_link->awaitUnawaited(); // whoever is told that this is closed finds its locks free
    m_link->mayReconnect = [] { return false; }; // statements that live on do not connect again
    m_link->beforeReading = {};
    m_link->readElsewhere = {};
    clearStatementCache();
}

void PostgresConnection::execute(const QString &script)
{
    const auto since = std::chrono::steady_clock::now();
    for (;;) {
        m_link->prepareFor(nullptr);
        try {
            m_link->run(script.toUtf8());
            return m_link->noteWriting();
        } catch (const EngineError &error) {
            if (!m_link->mayTryAgain(error, since))
                throw;
        }
    }
}

QString PostgresConnection::identity()
{
    const StatementPtr statement =
        prepare(u"SELECT CAST(system_identifier AS text) || '-' || CAST(oid AS text) "
                "FROM pg_control_system(), pg_database WHERE datname = current_database()"_s);
    return statement->next() ? statement->textAt(0) : QString();
}

void PostgresConnection::drain() { m_link->finishSent(); }

void PostgresConnection::tell(Statement &statement) { static_cast<PostgresStatement &>(statement).tell(); }

void PostgresConnection::begin()
{
    m_link->begin();
    m_locks->transactionBegun();
}

void PostgresConnection::commit()
{
    m_link->commit();
    m_locks->releaseDeferred();
    m_locks->transactionEnded();
}

void PostgresConnection::rollback() noexcept
{
    m_link->rollback();
    m_locks->releaseDeferred();
    m_locks->transactionEnded();
}

std::function<void()> PostgresConnection::interrupter()
{
    const std::shared_ptr<PGcancel> session(PQgetCancel(m_link->handle()), PQfreeCancel);
    return [session] {
        char failure[256]; // which nobody asks for: then the statement ends by itself
        if (session)
            PQcancel(session.get(), failure, sizeof failure);
    };
}

// A moment cannot be tried again for the sake of one statement, so that one waits for as long as would be tried.
std::unique_ptr<Connection> PostgresConnection::openMoment(const Database &database, ReadFrom from)
{
    PostgresTarget target = targetOf(database);
    target.told = {}; // a moment that is lost is over, and nobody waits for it
    target.lockWait = database.session().lockAttempts * database.session().lockPause;
    const bool mayLag = from == ReadFrom::Standby && database.session().readsFromStandby;
    auto reader = mayLag ? openReader(target) : std::make_unique<PostgresConnection>(target);
    reader->m_link->beginMoment();
    return reader;
}

std::unique_ptr<PostgresConnection> PostgresConnection::openReader(PostgresTarget target) const
{
    target.readsOnly = true;
    target.wantsStandby = true;
    auto reader = std::make_unique<PostgresConnection>(target);
    reader->m_reading =
        std::make_unique<StandbyReading>(*reader->m_link, m_reading ? m_reading->primary() : m_link);
    StandbyReading &reading = *reader->m_reading;
    reading.renew();
    reader->m_link->beforeReading = [&reading] { reading.keepUp(); };
    reader->m_link->readElsewhere = [&reading] {
        reading.giveUp();
        return true;
    };
    return reader;
}

std::unique_ptr<Connection> PostgresConnection::openReading(const Database &database)
{
    PostgresTarget target = targetOf(database);
    target.told = {}; // the one that writes tells of it
    return openReader(target);
}

void PostgresConnection::renewReading()
{
    if (m_reading)
        m_reading->renew();
}

ReadOrigin PostgresConnection::origin() const { return m_reading ? m_reading->origin() : ReadOrigin(); }

qint64 PostgresConnection::lastInsertId()
{
    const StatementPtr statement = prepare(u"SELECT lastval()"_s);
    return statement->next() ? statement->intAt(0) : 0;
}

void PostgresConnection::unmake() noexcept
{
    if (!m_isMade)
        return;
    try {
        if (!tables().isEmpty())
            return;
        m_link->mayReconnect = [] { return false; };
        m_link->dropDatabase();
    } catch (const EngineError &) { // an empty one stays, which the next restore takes
    }
}

LockManager &PostgresConnection::locks() { return *m_locks; }

bool PostgresConnection::isLost() const { return m_link->isLost(); }

bool PostgresConnection::hasEnded() { return m_link->hasEnded(); }

std::unique_ptr<Statement> PostgresConnection::createStatement(const QString &sql)
{
    return std::make_unique<PostgresStatement>(m_link, sql);
}

namespace {

// Of several addresses the one that answers first may be a standby, which has the new database a moment later.
std::unique_ptr<PostgresConnection> connectToMade(const PostgresTarget &target, const Session &session)
{
    constexpr std::chrono::seconds longest{30};
    const auto deadline = std::chrono::steady_clock::now() + longest;
    for (;;) {
        try {
            return std::make_unique<PostgresConnection>(target);
        } catch (const EngineError &error) {
            const bool mayCome = target.host.contains(u',') && isMissingDatabase(error);
            if (!mayCome || std::chrono::steady_clock::now() >= deadline)
                throw;
        }
        session.pause();
    }
}

} // namespace

std::unique_ptr<Connection> openPostgres(const Database &database)
{
    const PostgresTarget target = targetOf(database);
    try {
        return std::make_unique<PostgresConnection>(target);
    } catch (const EngineError &error) {
        if (!database.createIfMissing || !isMissingDatabase(error))
            throw;
    }
    const bool isMade = createRemoteDatabase(target);
    auto connection = connectToMade(target, database.session());
    if (isMade)
        connection->setMade();
    return connection;
}

} // namespace Engine
