#include "engine/postgres/error.h"
#include "engine/postgres/link.h"
#include "engine/store/platform.h"
#include "engine/store/reservedwords.h"

#include <algorithm>
#include <chrono>
#include <libpq-fe.h>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

constexpr std::chrono::seconds connectTimeout{10};

// The words and values of PQconnectStartParams, kept for the time of the call.
class Parameters
{
public:
    void add(const char *keyword, const QString &value)
    {
        m_keywords.push_back(keyword);
        m_texts.push_back(value.toUtf8());
    }
    PostgresHandle start()
    {
        std::vector<const char *> values;
        for (const QByteArray &text : m_texts)
            values.push_back(text.constData());
        values.push_back(nullptr);
        m_keywords.push_back(nullptr);
        return PostgresHandle(PQconnectStartParams(m_keywords.data(), values.data(), 0));
    }

private:
    std::vector<const char *> m_keywords;
    std::vector<QByteArray> m_texts;
};

bool isSet(const char *variable) { return !qEnvironmentVariableIsEmpty(variable); }

Parameters parametersOf(const PostgresTarget &target)
{
    Parameters parameters;
    parameters.add("host", target.host);
    parameters.add("dbname", target.database);
    if (!isSet("PGUSER"))
        parameters.add("user", target.user);
    // A password given here would silence the password file, so it goes only with the account given here.
    if (!isSet("PGUSER") && !isSet("PGPASSWORD") && !isSet("PGPASSFILE"))
        parameters.add("password", target.password);
    const QString chosenMode = qEnvironmentVariable("PGSSLMODE");
    const bool strict = QStringList{u"require"_s, u"verify-ca"_s, u"verify-full"_s}.contains(chosenMode);
    if (target.requireTls && !strict)
        parameters.add("sslmode", u"require"_s);
    else if (!target.requireTls && chosenMode.isEmpty())
        parameters.add("sslmode", u"prefer"_s);
    parameters.add("client_encoding", u"UTF8"_s);
    parameters.add("application_name", target.applicationName);
    parameters.add("keepalives_idle", u"30"_s);
    parameters.add("tcp_user_timeout", u"20000"_s);
    return parameters;
}

void ignoreNotice(void *, const PGresult *) { }

// Waits for the server without trusting every address of it to answer in time. Tells how far it came before a failure.
bool awaitConnection(pg_conn *handle, ConnStatusType *stage)
{
    const auto deadline = std::chrono::steady_clock::now() + connectTimeout;
    PostgresPollingStatusType state = PGRES_POLLING_WRITING;
    while (state == PGRES_POLLING_READING || state == PGRES_POLLING_WRITING) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || !waitForSocket(PQsocket(handle), state == PGRES_POLLING_WRITING, left))
            return false;
        *stage = PQstatus(handle);
        state = PQconnectPoll(handle);
    }
    return state == PGRES_POLLING_OK;
}

// Names and numbers of machines, or a folder of sockets. Whole connection strings are not taken for an address: they
// may hold a password, which would come up in messages.
bool isAddress(const QString &host)
{
    return !host.contains("//"_L1) && std::all_of(host.begin(), host.end(), [](QChar c) {
        return c.isLetterOrNumber() || u".:-_,/%[]"_s.contains(c);
    });
}

// Why connecting failed where the server itself has not told it.
EngineError unreached(pg_conn *handle, const PostgresTarget &target, ConnStatusType stage, const QString &message)
{
    const QString reason = message.isEmpty() ? Texts::tr("no answer within %1 seconds").arg(connectTimeout.count())
                                             : message.section(u'\n', 0, 0);
    if (handle && PQconnectionNeedsPassword(handle)) {
        const QString text = Texts::tr(
            "The %1 asks for the password of the account \"%2\", and none has been given. Enter it in the password "
            "file of the client library or in PGPASSWORD.");
        return EngineError(ErrorCode::AccessDenied, text.arg(target.location(), QString::fromUtf8(PQuser(handle))),
                           message);
    }
    if (stage == CONNECTION_SSL_STARTUP && !message.isEmpty()) {
        const QString text = Texts::tr(
            "The connection to the %1 must be encrypted, and could not be (%2). Have TLS set up on the server, or "
            "choose another kind of connection in the settings.");
        return EngineError(ErrorCode::CannotOpen, text.arg(target.location(), reason), message);
    }
    const QString text = Texts::tr("The %1 cannot be reached (%2). Check the address in the settings, "
                                   "the network, and that the server runs.");
    return EngineError(ErrorCode::CannotOpen, text.arg(target.location(), reason), message);
}

// "FATAL:  28P01: password authentication failed ..." among the lines of a verbose message.
EngineError connectError(pg_conn *handle, const PostgresTarget &target, ConnStatusType stage)
{
    QString message = QString::fromUtf8(PQerrorMessage(handle)).trimmed();
    if (message.endsWith(u':'))
        message.clear(); // it says with whom, and what has not come about yet
    static const QRegularExpression pattern(u"[A-Z]+:\\s+([0-9A-Z]{5}):\\s*([^\\n]*)"_s);
    QRegularExpressionMatch match;
    QRegularExpressionMatchIterator matches = pattern.globalMatch(message);
    while (matches.hasNext())
        match = matches.next();
    if (match.hasMatch())
        return postgresError(match.captured(1).toLatin1(), match.captured(2), {}, target.location());
    return unreached(handle, target, stage, message);
}

// From the first byte of the connection on, so that libpq gives the codes of failures too.
PostgresHandle opened(const PostgresTarget &target)
{
    if (target.host.isEmpty())
        raise(ErrorCode::CannotOpen, Texts::tr("No server address has been set. Enter it in the settings."));
    if (!isAddress(target.host))
        raise(ErrorCode::CannotOpen,
              Texts::tr("What has been set as the server address is no address. Enter the name or the "
                        "number of the server alone, without account and password."));
    PostgresHandle owned = beginConnecting(target);
    pg_conn *handle = owned.get();
    ConnStatusType stage = CONNECTION_STARTED;
    if (handle)
        PQsetErrorVerbosity(handle, PQERRORS_VERBOSE);
    if (handle && PQstatus(handle) != CONNECTION_BAD && awaitConnection(handle, &stage)) {
        PQsetErrorVerbosity(handle, PQERRORS_DEFAULT);
        PQsetNoticeReceiver(handle, ignoreNotice, nullptr);
        return owned;
    }
    throw connectError(handle, target, stage);
}

} // namespace

QString PostgresTarget::location() const
{
    return Texts::tr("database \"%1\" on the server %2").arg(database, host);
}

PostgresHandle beginConnecting(const PostgresTarget &target) { return parametersOf(target).start(); }

void PostgresLink::connect()
{
    if (m_handle)
        PQsetnonblocking(handle(), 1); // so that taking leave does not wait for a machine that is gone
    m_handle.reset();
    m_handle = opened(m_target);
    m_lost = false;
    ++m_generation;
    m_stale.clear();
    m_pending = 0;
    m_reader = nullptr;
    m_failure.reset();
    const ServerSession former = m_session;
    try {
        beginSession();
    } catch (const EngineError &) {
        m_handle.reset(); // or it would pass for one whose locks have been looked after
        throw;
    }
    try {
        endSession(former);
    } catch (const EngineError &) {
        if (isLost())
            throw; // otherwise this connection is good, and whose locks are gone must be told of it
    }
}

void PostgresLink::beginSession()
{
    const ResultPtr begun =
        run("SET datestyle = ISO; SET standard_conforming_strings = on; SET search_path = public; "
            "SET lock_timeout = "
            + QByteArray::number(static_cast<qint64>(m_target.lockWait.count()))
            + "; SELECT backend_start FROM pg_stat_activity WHERE pid = pg_backend_pid()");
    // Lets the server see a killed client while it works for it, so that its locks go at once. Not every system
    // that PostgreSQL runs on can do that.
    const ResultPtr ignored(PQexec(handle(), "SET client_connection_check_interval = '1s'"));
    m_session = {PQbackendPID(handle()), PQgetvalue(begun.get(), 0, 0)};
}

// The server may not have noticed yet that the former connection is gone, and keep its locks for it. After a new start
// of the server, its process may be somebody else's.
void PostgresLink::endSession(const ServerSession &session)
{
    if (session.begun.isEmpty())
        return;
    run("SELECT pg_terminate_backend(pid, 1000) FROM pg_stat_activity WHERE pid = "
        + QByteArray::number(session.processId) + " AND backend_start = '" + session.begun + "'");
}

void createRemoteDatabase(const PostgresTarget &target)
{
    PostgresTarget maintenance = target;
    maintenance.database = u"postgres"_s;
    maintenance.lockWait = std::chrono::minutes(1); // the server makes one database at a time
    PostgresLink link(maintenance);
    const QString statement =
        u"CREATE DATABASE %1 ENCODING 'UTF8' LC_COLLATE 'C' LC_CTYPE 'C' TEMPLATE template0"_s;
    try {
        link.run(statement.arg(quoted(target.database)).toUtf8());
    } catch (const EngineError &error) {
        if (!isExistingDatabase(error))
            throw;
    }
}

} // namespace Engine
