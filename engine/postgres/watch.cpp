#include "engine/postgres/watch.h"

#include "engine/postgres/link.h"
#include "engine/postgres/locks.h"

#include <libpq-fe.h>

namespace Engine {

namespace {

// One row with the state of the session, and with the session that it waits for if it does.
constexpr const char *question =
    "SELECT s.state LIKE 'idle%', b.pid IS NOT NULL, b.application_name, b.usename, host(b.client_addr), "
    "CAST(extract(epoch FROM b.xact_start) AS bigint) "
    "FROM (VALUES (CAST($1 AS integer))) AS asked (pid) LEFT JOIN pg_stat_activity s USING (pid) "
    "LEFT JOIN pg_stat_activity b ON b.pid = ANY (pg_blocking_pids(asked.pid)) LIMIT 1";

bool isTrue(const pg_result *row, int column) { return qstrcmp(PQgetvalue(row, 0, column), "t") == 0; }

} // namespace

PostgresWatch::PostgresWatch(const PostgresTarget &target, const PostgresServer &server, int processId)
    : m_handle(beginConnectingTo(server, target))
    , m_processId(processId)
{
    if (!m_handle || PQstatus(m_handle.get()) == CONNECTION_BAD)
        m_state = State::Failed;
}

int PostgresWatch::socket() const { return PQsocket(m_handle.get()); }

void PostgresWatch::proceed()
{
    if (m_state == State::Asked)
        return takeAnswer();
    switch (PQconnectPoll(m_handle.get())) {
    case PGRES_POLLING_READING:
        m_state = State::WantsToRead;
        return;
    case PGRES_POLLING_WRITING:
        m_state = State::WantsToWrite;
        return;
    case PGRES_POLLING_OK:
        return ask();
    default:
        m_state = State::Failed;
    }
}

void PostgresWatch::ask()
{
    const QByteArray id = QByteArray::number(m_processId);
    const char *const values[] = {id.constData()};
    const int sent = PQsendQueryParams(m_handle.get(), question, 1, nullptr, values, nullptr, nullptr, 0);
    m_state = sent == 1 ? State::Asked : State::Failed;
}

void PostgresWatch::takeAnswer()
{
    if (PQconsumeInput(m_handle.get()) != 1) {
        m_state = State::Failed;
        return;
    }
    if (PQisBusy(m_handle.get()))
        return;
    const ResultPtr answer(PQgetResult(m_handle.get()));
    if (PQntuples(answer.get()) != 1) {
        m_state = State::Failed;
        return;
    }
    m_state = State::Answered;
    m_idle = PQgetisnull(answer.get(), 0, 0) || isTrue(answer.get(), 0);
    if (isTrue(answer.get(), 1))
        m_blocker = sessionOwner(PQgetvalue(answer.get(), 0, 2), PQgetvalue(answer.get(), 0, 3),
                                 PQgetvalue(answer.get(), 0, 4), PQgetvalue(answer.get(), 0, 5));
}

} // namespace Engine
