#pragma once

#include "engine/records/query.h"

namespace Tallymere {

// The notes in the host's history of what was deleted, repaired and restored (data/audit.h), latest first.
class AuditView
{
public:
    static constexpr QStringView Day{u"DoneOn"};
    static constexpr QStringView Time{u"DoneAt"};
    static constexpr QStringView What{u"Event"};
    static constexpr QStringView Who{u"DoneBy"};
    static constexpr QStringView Concerned{u"Event_Date"}; // the day of what it was done to

    explicit AuditView(Engine::Database &database);

    Engine::Query &query() { return m_query; } // for reading only
    void open();

private:
    Engine::Query m_query;
};

} // namespace Tallymere
