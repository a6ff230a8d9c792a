#include "tests/support/journeys.h"

#include <atomic>
#include <cstdio>
#include <dlfcn.h>
#include <libpq-fe.h>
#include <map>
#include <QtGlobal>
#include <string>
#include <thread>

namespace {

struct Count
{
    std::atomic<bool> isOn = false;
    std::thread::id thread;
    const PGconn *connection = nullptr;
    bool isSent = false;
    int journeys = 0;
    bool isTold = false;
    std::map<std::pair<const PGconn *, std::string>, std::string> statements; // by name
};

Count &counting()
{
    static Count count;
    return count;
}

bool isHere()
{
    const Count &count = counting();
    return count.isOn && std::this_thread::get_id() == count.thread;
}

bool counts(const PGconn *connection)
{
    return isHere() && (!counting().connection || counting().connection == connection);
}

void sent(const PGconn *connection, const std::string &what)
{
    if (!counts(connection))
        return;
    Count &count = counting();
    count.connection = connection;
    count.isSent = true;
    if (count.isTold && !what.empty())
        std::fprintf(stderr, "    %s\n", what.c_str());
}

void waited(const PGconn *connection)
{
    Count &count = counting();
    if (!counts(connection) || !count.isSent)
        return;
    count.isSent = false;
    ++count.journeys;
    if (count.isTold)
        std::fprintf(stderr, "--- %d\n", count.journeys);
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
    count.isTold = qEnvironmentVariableIsSet("TALLYMERE_TEST_JOURNEYS");
    count.isOn = true;
}

Journeys::~Journeys() { counting().isOn = false; }

int Journeys::take(const char *what)
{
    const int taken = counting().journeys - m_taken;
    m_taken = counting().journeys;
    if (counting().isTold)
        std::fprintf(stderr, "=== %s: %d\n", what, taken);
    return taken;
}

extern "C" {

int PQsendQuery(PGconn *connection, const char *query)
{
    static auto *const function = real<decltype(PQsendQuery)>("PQsendQuery");
    sent(connection, query);
    return function(connection, query);
}

int PQsendQueryParams(PGconn *connection, const char *command, int count, const Oid *types,
                      const char *const *values, const int *lengths, const int *formats, int resultFormat)
{
    static auto *const function = real<decltype(PQsendQueryParams)>("PQsendQueryParams");
    sent(connection, command);
    return function(connection, command, count, types, values, lengths, formats, resultFormat);
}

int PQsendPrepare(PGconn *connection, const char *name, const char *query, int count, const Oid *types)
{
    static auto *const function = real<decltype(PQsendPrepare)>("PQsendPrepare");
    if (isHere())
        counting().statements[{connection, name}] = query;
    sent(connection, {});
    return function(connection, name, query, count, types);
}

int PQsendQueryPrepared(PGconn *connection, const char *name, int count, const char *const *values,
                        const int *lengths, const int *formats, int resultFormat)
{
    static auto *const function = real<decltype(PQsendQueryPrepared)>("PQsendQueryPrepared");
    std::string text;
    if (isHere() && counting().isTold) {
        text = counting().statements[{connection, name}];
        for (int i = 0; i < count; ++i)
            text += (i == 0 ? "  <- " : ", ") + std::string(values[i] ? values[i] : "null");
    }
    sent(connection, text);
    return function(connection, name, count, values, lengths, formats, resultFormat);
}

int PQsendDescribePrepared(PGconn *connection, const char *name)
{
    static auto *const function = real<decltype(PQsendDescribePrepared)>("PQsendDescribePrepared");
    sent(connection, "(columns)");
    return function(connection, name);
}

int PQpipelineSync(PGconn *connection)
{
    static auto *const function = real<decltype(PQpipelineSync)>("PQpipelineSync");
    sent(connection, {});
    return function(connection);
}

int PQputCopyEnd(PGconn *connection, const char *error)
{
    static auto *const function = real<decltype(PQputCopyEnd)>("PQputCopyEnd");
    sent(connection, "(copied)");
    return function(connection, error);
}

PGresult *PQgetResult(PGconn *connection)
{
    static auto *const function = real<decltype(PQgetResult)>("PQgetResult");
    waited(connection);
    return function(connection);
}

} // extern "C"
