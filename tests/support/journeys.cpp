#include "tests/support/journeys.h"

#include <atomic>
#include <dlfcn.h>
#include <libpq-fe.h>
#include <thread>

namespace {

struct Count
{
    std::atomic<bool> isOn = false;
    std::thread::id thread;
    const PGconn *connection = nullptr;
    bool isSent = false;
    int journeys = 0;
};

Count &counting()
{
    static Count count;
    return count;
}

bool counts(const PGconn *connection)
{
    const Count &count = counting();
    return count.isOn && std::this_thread::get_id() == count.thread
        && (!count.connection || count.connection == connection);
}

void sent(const PGconn *connection)
{
    if (!counts(connection))
        return;
    counting().connection = connection;
    counting().isSent = true;
}

void waited(const PGconn *connection)
{
    Count &count = counting();
    if (!counts(connection) || !count.isSent)
        return;
    count.isSent = false;
    ++count.journeys;
}

template <typename Function> Function *real(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace

Journeys::Journeys()
{
    Count &count = counting();
    count.thread = std::this_thread::get_id();
    count.connection = nullptr;
    count.journeys = 0;
    count.isSent = false;
    count.isOn = true;
}

Journeys::~Journeys() { counting().isOn = false; }

int Journeys::take()
{
    const int taken = counting().journeys - m_taken;
    m_taken = counting().journeys;
    return taken;
}

extern "C" {

int PQsendQuery(PGconn *connection, const char *query)
{
    sent(connection);
    return real<decltype(PQsendQuery)>("PQsendQuery")(connection, query);
}

int PQsendQueryParams(PGconn *connection, const char *command, int count, const Oid *types,
                      const char *const *values, const int *lengths, const int *formats, int resultFormat)
{
    sent(connection);
    return real<decltype(PQsendQueryParams)>("PQsendQueryParams")(connection, command, count, types, values,
                                                                  lengths, formats, resultFormat);
}

int PQsendPrepare(PGconn *connection, const char *name, const char *query, int count, const Oid *types)
{
    sent(connection);
    return real<decltype(PQsendPrepare)>("PQsendPrepare")(connection, name, query, count, types);
}

int PQsendQueryPrepared(PGconn *connection, const char *name, int count, const char *const *values,
                        const int *lengths, const int *formats, int resultFormat)
{
    sent(connection);
    return real<decltype(PQsendQueryPrepared)>("PQsendQueryPrepared")(connection, name, count, values, lengths,
                                                                      formats, resultFormat);
}

int PQsendDescribePrepared(PGconn *connection, const char *name)
{
    sent(connection);
    return real<decltype(PQsendDescribePrepared)>("PQsendDescribePrepared")(connection, name);
}

int PQpipelineSync(PGconn *connection)
{
    sent(connection);
    return real<decltype(PQpipelineSync)>("PQpipelineSync")(connection);
}

int PQputCopyEnd(PGconn *connection, const char *error)
{
    sent(connection);
    return real<decltype(PQputCopyEnd)>("PQputCopyEnd")(connection, error);
}

PGresult *PQgetResult(PGconn *connection)
{
    waited(connection);
    return real<decltype(PQgetResult)>("PQgetResult")(connection);
}

} // extern "C"
