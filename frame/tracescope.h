#pragma once

#include "base/trace.h"

namespace Tallymere {

// Traces entry to and exit from a routine.
class TraceScope
{
public:
    explicit TraceScope(const char *routine)
        : m_routine(routine)
    {
        qCDebug(trace, "Enter %s", m_routine);
    }
    ~TraceScope() { qCDebug(trace, "Exit %s", m_routine); }
    TraceScope(const TraceScope &) = delete;
    TraceScope &operator=(const TraceScope &) = delete;

private:
    const char *m_routine;
};

} // namespace Tallymere
