#pragma once

#include "master/hostsync.h"

namespace Tallymere {

// Brings the host's places ("Locatns") into the locations. A location that is linked to a place takes its current
// name; a place without a location becomes one, with the highest key plus 1. Nothing is deleted.
//
// Throws EngineError, and the run ends there: nothing is written when another user works on the locations or the
// update fails; a failing insert keeps the locations added before it.
class LocationSync
{
public:
    explicit LocationSync(Engine::Database &database)
        : m_database(database)
    {
    }

    HostSyncResult run(Progress &progress);

private:
    struct Place;
    std::vector<Place> readNewPlaces() const;

    Engine::Database &m_database;
};

} // namespace Tallymere
