#pragma once

#include "engine/records/query.h"
#include "engine/values/fieldname.h"

namespace Tallymere {

// The notes in the host's history of what was deleted, repaired and restored (data/audit.h), latest first.
class AuditView
{
public:
    static constexpr Engine::FieldName<Engine::FieldType::Date> Day{u"DoneOn"};
    static constexpr Engine::FieldName<Engine::FieldType::Text> Time{u"DoneAt"};
    static constexpr Engine::FieldName<Engine::FieldType::Text> What{u"Event"};
    static constexpr Engine::FieldName<Engine::FieldType::Text> Who{u"DoneBy"};
    static constexpr Engine::FieldName<Engine::FieldType::Date> Concerned{
        u"Event_Date"}; // the day of what it was done to

    explicit AuditView(Engine::Database &database);

    Engine::Query &query() { return m_query; } // for reading only
    void open();

private:
    Engine::Query m_query;
};

} // namespace Tallymere
