#pragma once

#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/values/error.h"

#include <memory>

namespace Engine {

// What a database holds at one moment. Whatever is read through it is of that moment, however long that takes and
// whatever others, this program's own screens among them, write meanwhile. It has a connection of its own, which a server
// counts; when that is lost, reading throws ConnectionLost and does not go on with a later moment.
class ReadMoment
{
public:
    // Now. Throws what connecting throws, and FileReplaced where the database has another file in its place. From a
    // standby it is the moment that this has come to; it lacks nothing that this program has written.
    explicit ReadMoment(Database &database, ReadFrom from = ReadFrom::Primary);
    ~ReadMoment();
    // Now, of the primary, where a standby has failed.
    static std::unique_ptr<ReadMoment> insteadOfStandby(Database &database);
    ReadMoment(const ReadMoment &) = delete;
    ReadMoment &operator=(const ReadMoment &) = delete;

    // The database at the moment, for tables and queries that are closed before the moment goes. Takes no writes.
    Database &database() { return m_database; }
    // In folders of other computers a file cannot be written while it is read, and a standby that is read for long falls
    // behind or ends the reading. There what is read is to be put aside at once, and the moment ended before anything else
    // is done.
    bool isToBePutAside() const { return m_keepsWritersOut || isOnStandby(); }
    bool keepsWritersOut() const { return m_keepsWritersOut; }
    const ReadOrigin &origin() const { return m_origin; }
    bool isOnStandby() const { return m_origin.isStandby(); }

    // All has been read. Throws FileReplaced when the file was replaced under the reading, which is worth nothing then.
    void end();

private:
    void tell() const;

    Database m_database;
    bool m_keepsWritersOut;
    ReadOrigin m_origin;
};

// Has something read at a moment, of a standby where the session wants that and there is one. Where the standby fails in the
// middle of it, it is read once more, from the primary: so the reading begins anew each time, and gives nothing away before
// its end. Read takes a std::unique_ptr<ReadMoment>.
template <typename Read> auto readAtMoment(Database &database, Read read, ReadFrom from = ReadFrom::Standby)
{
    auto moment = std::make_unique<ReadMoment>(database, from);
    if (!moment->isOnStandby())
        return read(std::move(moment));
    try {
        return read(std::move(moment));
    } catch (const EngineError &error) { // which may be due to what the standby itself is like
        if (error.code() == ErrorCode::BadExpression)
            throw;
    }
    return read(ReadMoment::insteadOfStandby(database));
}

} // namespace Engine
