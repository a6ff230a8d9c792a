#include "engine/store/database.h"

#include "engine/store/session.h"
#include "engine/values/error.h"

using namespace Qt::StringLiterals;

namespace Engine {

Database::Database(Session &session, QString name)
    : m_session(session)
    , m_name(std::move(name))
{
}

Database::Database(Database &other, std::unique_ptr<Connection> connection)
    : directory(other.directory)
    , remoteName(other.remoteName)
    , m_session(other.m_session)
    , m_name(other.m_name)
    , m_connection(std::move(connection))
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
        m_connection = m_session.stores().inMemory();
        return *m_connection;
    }
    m_session.start();
    if (onBeforeConnect)
        onBeforeConnect(*this);
    const Stores &stores = m_session.stores();
    m_connection = m_session.type == SessionType::Local ? stores.local(*this) : stores.remote(*this);
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

void Database::write(const std::function<StatementPtr(Connection &)> &bound)
{
    const bool joins = connection().inTransaction();
    change([&] {
        const StatementPtr statement = bound(connection());
        joins ? connection().write(*statement) : statement->send();
    });
}

QString Database::identity() { return connection().identity(); }

bool Database::tableExists(const QString &table) { return connection().describe(table).has_value(); }

} // namespace Engine
