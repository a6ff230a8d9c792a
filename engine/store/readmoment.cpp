#include "engine/store/readmoment.h"

namespace Engine {

ReadMoment::ReadMoment(Database &database, ReadFrom from)
    : m_database(database, database.connection().openMoment(database, from))
    , m_keepsWritersOut(m_database.connection().isWritingKeptOutByReading())
    , m_origin(m_database.connection().origin())
{
    tell();
}

ReadMoment::~ReadMoment() = default;

std::unique_ptr<ReadMoment> ReadMoment::insteadOfStandby(Database &database)
{
    auto moment = std::make_unique<ReadMoment>(database);
    moment->m_origin = {.reason = ReadOrigin::Reason::Failed, .server = {}, .asOf = QDateTime::currentDateTime()};
    moment->tell();
    return moment;
}

void ReadMoment::tell() const
{
    const Session &session = m_database.session();
    if (m_origin.reason != ReadOrigin::Reason::NotWanted && session.readFrom)
        session.readFrom(m_origin);
}

void ReadMoment::end() { m_database.connection().commit(); }

} // namespace Engine
