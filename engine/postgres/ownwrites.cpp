#include "engine/postgres/ownwrites.h"

#include <atomic>
#include <map>
#include <mutex>

namespace Engine {

namespace {

std::atomic<quint64> noted = 0;

struct Known
{
    quint64 count = 0;
    qint64 position = 0;
};

} // namespace

void OwnWrites::note() { ++noted; }

quint64 OwnWrites::count() { return noted; }

// A log that is shorter than it was is that of a server that has taken over: what has survived lies before its end.
qint64 OwnWrites::position(const QString &database, quint64 count, qint64 logEnd)
{
    static std::mutex mutex;
    static std::map<QString, Known> all;
    const std::lock_guard lock(mutex);
    const auto [entry, isNew] = all.try_emplace(database, Known{count, logEnd});
    Known &known = entry->second;
    if (!isNew && (known.count != count || logEnd < known.position))
        known = {count, logEnd};
    return known.position;
}

} // namespace Engine
