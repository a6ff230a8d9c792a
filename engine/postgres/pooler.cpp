#include "engine/postgres/error.h"
#include "engine/postgres/link.h"
#include "engine/store/platform.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <libpq-fe.h>
#include <mutex>
#include <vector>

namespace Engine {

namespace {

using Clock = std::chrono::steady_clock;

// A pooler that has no further session to give lets whoever comes wait. One that gives sessions by the transaction always
// has the one that this program has just used.
constexpr std::chrono::seconds patience{2};
constexpr int mostLooks = 3;

std::chrono::milliseconds left(Clock::time_point deadline)
{
    return std::max(std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()),
                    std::chrono::milliseconds(0));
}

bool awaitConnected(pg_conn *handle, Clock::time_point deadline)
{
    PostgresPollingStatusType state = PGRES_POLLING_WRITING;
    while (state == PGRES_POLLING_READING || state == PGRES_POLLING_WRITING) {
        if (!waitForSocket(PQsocket(handle), state == PGRES_POLLING_WRITING, left(deadline)))
            return false;
        state = PQconnectPoll(handle);
    }
    return state == PGRES_POLLING_OK;
}

// The number of the server's process that answers; 0 when none has in time.
int processOf(pg_conn *handle, Clock::time_point deadline)
{
    if (PQsendQuery(handle, "SELECT pg_backend_pid()") != 1)
        return 0;
    while (PQisBusy(handle)) {
        if (!waitForSocket(PQsocket(handle), false, left(deadline)) || PQconsumeInput(handle) != 1)
            return 0;
    }
    int process = 0;
    while (const ResultPtr result{PQgetResult(handle)})
        process = QByteArray(PQgetvalue(result.get(), 0, 0)).toInt();
    return process;
}

// Asked once for each place, as it takes another connection.
class SoundPlaces
{
public:
    bool has(const QString &place)
    {
        const std::lock_guard lock(m_mutex);
        return std::find(m_places.begin(), m_places.end(), place) != m_places.end();
    }
    void add(const QString &place)
    {
        const std::lock_guard lock(m_mutex);
        m_places.push_back(place);
    }

private:
    std::mutex m_mutex;
    std::vector<QString> m_places;
};

SoundPlaces &soundPlaces()
{
    static SoundPlaces places;
    return places;
}

} // namespace

// Two connections that are both there have a session each, unless sessions are handed on: then the second gets the one that
// the first has just used, or the first does not get its own again.
void PostgresLink::refuseHandedOnSessions()
{
    const PostgresServer server = serverOf(handle());
    const QString place = server.host + u' ' + server.port + u' ' + m_target.database;
    if (PQbackendPID(handle()) == m_session.processId || soundPlaces().has(place))
        return; // nobody stands between, or a pooler that is known
    const auto deadline = Clock::now() + patience;
    const PostgresHandle other = beginConnectingTo(server, m_target);
    if (!other || !awaitConnected(other.get(), deadline))
        return;
    for (int look = 0; look < mostLooks; ++look) {
        const int process = processOf(other.get(), deadline);
        const ResultPtr own = run("SELECT pg_backend_pid()");
        if (process == m_session.processId
            || QByteArray(PQgetvalue(own.get(), 0, 0)).toInt() != m_session.processId)
            throw handedOnSessions(location());
        if (process == 0)
            return;
    }
    soundPlaces().add(place);
}

} // namespace Engine
