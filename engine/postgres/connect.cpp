#include "engine/postgres/error.h"
#include "engine/postgres/link.h"
#include "engine/store/platform.h"
#include "engine/store/reservedwords.h"

#include <algorithm>
#include <chrono>
#include <libpq-fe.h>
#include <mutex>
#include <QRegularExpression>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

// For a server to answer: the only one there is, and each of several.
constexpr std::chrono::seconds connectTimeout{10};
constexpr std::chrono::seconds oneOfSeveralTimeout{4};
constexpr std::chrono::milliseconds betweenSigns{100}; // that it is still waited for

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

Parameters parametersOf(const PostgresTarget &target, const QList<PostgresServer> &servers)
{
    Parameters parameters;
    QStringList hosts;
    QStringList ports;
    for (const PostgresServer &server : servers) {
        hosts << server.host;
        ports << server.port;
    }
    parameters.add("host", servers.isEmpty() ? target.host : hosts.join(u','));
    if (!servers.isEmpty())
        parameters.add("port", ports.join(u','));
    parameters.add("dbname", target.database);
    if (target.wantsStandby)
        parameters.add("target_session_attrs", u"standby"_s);
    else if (target.hasSeveral() && !isSet("PGTARGETSESSIONATTRS"))
        parameters.add("target_session_attrs", u"read-write"_s);
    // A service of the client library's own file (pg_service.conf) stands for an account as well.
    const bool ownAccount = !isSet("PGUSER") && !isSet("PGSERVICE");
    if (ownAccount)
        parameters.add("user", target.user);
    // A password given here would silence the password file, so it goes only with the account given here.
    if (ownAccount && !isSet("PGPASSWORD") && !isSet("PGPASSFILE"))
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

enum class Outcome { Connected, Failed, Silent };

// Waits for the server without trusting every address of it to answer in time. Tells how far it came before a failure.
// Now and then something else may be done meanwhile.
Outcome awaitConnection(pg_conn *handle, std::chrono::seconds time, ConnStatusType *stage,
                        const std::function<void()> &meanwhile)
{
    using Clock = std::chrono::steady_clock;
    auto deadline = Clock::now() + time;
    PostgresServer server = serverOf(handle);
    PostgresPollingStatusType state = PGRES_POLLING_WRITING;
    while (state == PGRES_POLLING_READING || state == PGRES_POLLING_WRITING) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        if (left.count() <= 0)
            return Outcome::Silent;
        if (!waitForSocket(PQsocket(handle), state == PGRES_POLLING_WRITING, std::min(left, betweenSigns))) {
            if (meanwhile)
                meanwhile();
            continue;
        }
        *stage = PQstatus(handle);
        state = PQconnectPoll(handle);
        if (server != serverOf(handle)) {
            server = serverOf(handle);
            deadline = Clock::now() + time;
        }
    }
    return state == PGRES_POLLING_OK ? Outcome::Connected : Outcome::Failed;
}

// All that a connection may go to, in their order.
QList<PostgresServer> serversOf(pg_conn *handle)
{
    const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> options(PQconninfo(handle), PQconninfoFree);
    const auto list = [&](const char *keyword) {
        for (const PQconninfoOption *option = options.get(); option && option->keyword; ++option) {
            if (qstrcmp(option->keyword, keyword) == 0)
                return QString::fromUtf8(option->val).split(u',');
        }
        return QStringList();
    };
    const QStringList hosts = list("host");
    const QStringList ports = list("port");
    QList<PostgresServer> servers;
    for (qsizetype i = 0; i < hosts.size(); ++i)
        servers.append({hosts[i], ports.size() == hosts.size() ? ports[i] : ports.value(0)});
    return servers;
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

void requireAddress(const PostgresTarget &target)
{
    if (target.host.isEmpty())
        raise(ErrorCode::CannotOpen, Texts::tr("No server address has been set. Enter it in the settings."));
    if (!isAddress(target.host))
        raise(ErrorCode::CannotOpen,
              Texts::tr("What has been set as the server address is no address. Enter the name or the "
                        "number of the server alone, without account and password."));
}

// Servers that have said nothing a moment ago, so that not every new connection waits for them. Other threads connect too.
class SilentServers
{
public:
    void note(const PostgresServer &server)
    {
        const std::lock_guard lock(m_mutex);
        m_heard.erase(std::remove_if(m_heard.begin(), m_heard.end(),
                                     [&](const auto &entry) { return entry.first == server; }),
                      m_heard.end());
        m_heard.emplace_back(server, Clock::now());
    }
    bool areNone()
    {
        const std::lock_guard lock(m_mutex);
        return m_heard.empty();
    }
    bool has(const PostgresServer &server)
    {
        const std::lock_guard lock(m_mutex);
        return std::any_of(m_heard.begin(), m_heard.end(), [&](const auto &entry) {
            return entry.first == server && Clock::now() - entry.second < remembered;
        });
    }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::minutes remembered{1};
    std::mutex m_mutex;
    std::vector<std::pair<PostgresServer, Clock::time_point>> m_heard;
};

SilentServers &silent()
{
    static SilentServers servers;
    return servers;
}

// The target's servers in their order, but those behind that were silent; nothing where that is no other order.
QList<PostgresServer> spokenFirst(const PostgresTarget &target)
{
    if (!target.hasSeveral() || isSet("PGHOSTADDR") || silent().areNone())
        return {};
    const QList<PostgresServer> all = serversOf(beginConnecting(target).get());
    QList<PostgresServer> ordered = all;
    const auto silentOnes = std::stable_partition(
        ordered.begin(), ordered.end(), [](const PostgresServer &server) { return !silent().has(server); });
    if (target.wantsStandby && silentOnes != ordered.begin())
        ordered.erase(silentOnes, ordered.end()); // the primary will do before one of them is waited for again
    return ordered == all ? QList<PostgresServer>() : ordered;
}

struct Attempt
{
    PostgresHandle handle;
    std::optional<EngineError> error; // none: it is connected
    bool isWorthTheNext = false; // another server may do
    bool isSilent = false;
};

// From the first byte of the connection on verbose, so that libpq gives the codes of failures too.
Attempt attempted(const PostgresTarget &target, const QList<PostgresServer> &servers,
                  const std::function<void()> &meanwhile)
{
    Attempt attempt{beginConnecting(target, servers), {}};
    pg_conn *handle = attempt.handle.get();
    ConnStatusType stage = CONNECTION_STARTED;
    Outcome outcome = Outcome::Failed;
    if (handle)
        PQsetErrorVerbosity(handle, PQERRORS_VERBOSE);
    if (handle && PQstatus(handle) != CONNECTION_BAD)
        outcome =
            awaitConnection(handle, target.hasSeveral() ? oneOfSeveralTimeout : connectTimeout, &stage, meanwhile);
    if (outcome == Outcome::Connected) {
        PQsetErrorVerbosity(handle, PQERRORS_DEFAULT);
        PQsetNoticeReceiver(handle, ignoreNotice, nullptr);
        return attempt;
    }
    attempt.error = connectError(handle, target, stage);
    attempt.isSilent = handle && outcome == Outcome::Silent;
    attempt.isWorthTheNext = attempt.isSilent || (handle && isMissingDatabase(*attempt.error));
    return attempt;
}

// The client library goes on to the next server where one refuses or cannot be written to, but not where one says nothing,
// or has not heard yet of a new database.
PostgresHandle opened(const PostgresTarget &target, const std::function<void()> &meanwhile)
{
    requireAddress(target);
    QList<PostgresServer> left = spokenFirst(target); // empty: as the target says
    std::optional<EngineError> missing; // which tells more than a standby that still has what was dropped
    for (;;) {
        Attempt attempt = attempted(target, left, meanwhile);
        if (!attempt.error)
            return std::move(attempt.handle);
        if (isMissingDatabase(*attempt.error))
            missing = attempt.error;
        const EngineError error = missing.value_or(*attempt.error);
        if (!target.hasSeveral() || !attempt.isWorthTheNext || isSet("PGHOSTADDR"))
            throw EngineError(error);
        if (left.isEmpty())
            left = serversOf(attempt.handle.get());
        if (attempt.isSilent)
            silent().note(serverOf(attempt.handle.get()));
        left.removeOne(serverOf(attempt.handle.get()));
        if (left.isEmpty())
            throw EngineError(error);
    }
}

// What cannot be said within the database that it is about.
void runOnServer(PostgresTarget target, const QString &statement)
{
    target.database = u"postgres"_s;
    target.lockWait = std::chrono::minutes(1); // the server makes one database at a time
    PostgresLink(target).run(statement.toUtf8());
}

} // namespace

QString PostgresTarget::location() const
{
    return Texts::tr("database \"%1\" on the server %2").arg(database, host);
}

PostgresHandle beginConnecting(const PostgresTarget &target, const QList<PostgresServer> &servers)
{
    return parametersOf(target, servers).start();
}

PostgresHandle beginConnectingTo(const PostgresServer &server, const PostgresTarget &target)
{
    Parameters parameters = parametersOf(target, {server});
    parameters.add("target_session_attrs", u"any"_s);
    return parameters.start();
}

PostgresServer serverOf(const pg_conn *handle)
{
    return {QString::fromUtf8(PQhost(handle)), QString::fromUtf8(PQport(handle))};
}

void PostgresLink::connect()
{
    if (m_marker.isEmpty())
        m_marker = QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
    if (m_handle)
        PQsetnonblocking(handle(), 1); // so that taking leave does not wait for a machine that is gone
    m_handle.reset();
    m_handle = openedWhereWanted();
    m_lost = false;
    ++m_generation;
    m_stale.clear();
    loseAnswers();
    m_missing.clear();
    m_reader = nullptr;
    m_failure.reset();
    const ServerSession former = m_session;
    try {
        beginSession();
        refuseHandedOnSessions();
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
    tell(true);
}

PostgresHandle PostgresLink::openedWhereWanted()
{
    // Only what is connected again refuses what a screen does meanwhile (makeReady).
    const std::function<void()> meanwhile = m_isConnecting ? m_target.stayAlive : std::function<void()>();
    try {
        return opened(m_target, meanwhile);
    } catch (const EngineError &) {
        if (!std::exchange(m_target.wantsStandby, false))
            throw;
    }
    return opened(m_target, meanwhile);
}

void PostgresLink::beginSession()
{
    const ResultPtr begun = run(
        "SET datestyle = ISO; SET standard_conforming_strings = on; SET search_path = public; "
        "SET lock_timeout = "
        + QByteArray::number(static_cast<qint64>(m_target.lockWait.count()))
        + (m_target.readsOnly ? "; SET default_transaction_read_only = on" : "")
        + "; SELECT pid, backend_start, writes AND to_regclass('tallymere.commits') IS NOT NULL, "
          "writes AND has_database_privilege(current_database(), 'CREATE') "
          "FROM pg_stat_activity, (SELECT NOT pg_is_in_recovery() AS writes) AS w WHERE pid = pg_backend_pid()");
    // Lets the server see a killed client while it works for it, so that its locks go at once. Not every system
    // that PostgreSQL runs on can do that.
    const ResultPtr ignored(PQexec(handle(), "SET client_connection_check_interval = '1s'"));
    // The process as the server itself calls it: what stands between may have told the client library another number.
    m_session = {QByteArray(PQgetvalue(begun.get(), 0, 0)).toInt(), PQgetvalue(begun.get(), 0, 1)};
    m_canMark = qstrcmp(PQgetvalue(begun.get(), 0, 2), "t") == 0;
    m_mayMakeMarks = !m_canMark && qstrcmp(PQgetvalue(begun.get(), 0, 3), "t") == 0;
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

void PostgresLink::dropDatabase()
{
    m_handle.reset();
    m_lost = true;
    runOnServer(m_target, u"DROP DATABASE IF EXISTS %1"_s.arg(quoted(m_target.database)));
}

bool createRemoteDatabase(const PostgresTarget &target)
{
    const QString statement =
        u"CREATE DATABASE %1 ENCODING 'UTF8' LC_COLLATE 'C' LC_CTYPE 'C' TEMPLATE template0"_s;
    try {
        runOnServer(target, statement.arg(quoted(target.database)));
        return true;
    } catch (const EngineError &error) {
        if (!isExistingDatabase(error))
            throw;
        return false;
    }
}

} // namespace Engine
