#include "engine/database.h"

#include "engine/error.h"
#include "engine/postgres/connection.h"
#include "engine/postgres/error.h"
#include "engine/postgres/locks.h"
#include "engine/session.h"
#include "engine/sqlite/connection.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

std::unique_ptr<Connection> openLocal(const Database &database)
{
    const QString &folder = database.directory;
    if (folder.isEmpty())
        raise(ErrorCode::CannotOpen,
              Texts::tr("No database folder has been set. Choose the folder in the settings."));
    if (!QFileInfo(folder).isDir())
        raise(ErrorCode::CannotOpen,
              Texts::tr("The database folder %1 does not exist or cannot be reached. Check the settings and the "
                        "network.")
                  .arg(folder));
    if (!QFileInfo(folder).isExecutable())
        raise(
            ErrorCode::AccessDenied,
            Texts::tr("You have no right to enter the database folder %1. Ask its owner for access.").arg(folder));
    const QString fileName = database.name() + ".sqlite"_L1;
    const QString path = folder + u'/' + fileName;
    if (!database.createIfMissing && !QFileInfo::exists(path))
        raise(ErrorCode::CannotOpen,
              Texts::tr("There is no database %1 in %2. Check the folder in the settings, or make the database "
                        "with \"tallymere init\".")
                  .arg(fileName, folder));
    const auto missing =
        database.createIfMissing ? SqliteConnection::Missing::Create : SqliteConnection::Missing::Fail;
    return std::make_unique<SqliteConnection>(path, missing, database.session().applicationUser);
}

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
    target.applicationName = PostgresLocks::applicationName(session.applicationUser);
    return target;
}

std::unique_ptr<Connection> openRemote(const Database &database)
{
    const PostgresTarget target = targetOf(database);
    try {
        return std::make_unique<PostgresConnection>(target);
    } catch (const EngineError &error) {
        if (!database.createIfMissing || !isMissingDatabase(error))
            throw;
    }
    createRemoteDatabase(target);
    return std::make_unique<PostgresConnection>(target);
}

} // namespace

Database::Database(Session &session, QString name)
    : m_session(session)
    , m_name(std::move(name))
{
}

Database::~Database() = default;

std::unique_ptr<Database> Database::inMemory(Session &session)
{
    auto database = std::make_unique<Database>(session, u"Memory"_s);
    database->m_inMemory = true;
    return database;
}

Connection &Database::connection()
{
    if (m_connection)
        return *m_connection;
    if (m_inMemory) {
        m_connection = SqliteConnection::inMemory();
        return *m_connection;
    }
    m_session.start();
    if (onBeforeConnect)
        onBeforeConnect(*this);
    m_connection = m_session.type == SessionType::Local ? openLocal(*this) : openRemote(*this);
    return *m_connection;
}

void Database::close() { m_connection.reset(); }

void Database::change(const std::function<void()> &step)
{
    const bool joins = connection().inTransaction();
    const auto since = std::chrono::steady_clock::now();
    for (;;) {
        try {
            Transaction transaction(connection()); // the pause before may have closed the former one
            step();
            return transaction.commit();
        } catch (const EngineError &error) {
            if (error.code() != ErrorCode::Busy || joins || !m_session.mayTryAgain(since))
                throw;
        }
    }
}

bool Database::tableExists(const QString &table) { return connection().describe(table).has_value(); }

QStringList Database::tableNames() { return connection().tableNames(); }

} // namespace Engine
