#include "engine/store/readmoment.h"

namespace Engine {

ReadMoment::ReadMoment(Database &database)
    : m_database(database, database.connection().openMoment(database))
    , m_keepsWritersOut(m_database.connection().isWritingKeptOutByReading())
{
}

ReadMoment::~ReadMoment() = default;

void ReadMoment::end() { m_database.connection().commit(); }

} // namespace Engine
