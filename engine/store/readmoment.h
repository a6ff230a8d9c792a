#pragma once

#include "engine/store/database.h"

namespace Engine {

// What a database holds at one moment. Whatever is read through it is of that moment, however long that takes and
// whatever others, this program's own screens among them, write meanwhile. It has a connection of its own, which a server
// counts; when that is lost, reading throws ConnectionLost and does not go on with a later moment.
class ReadMoment
{
public:
    // Now. Throws what connecting throws, and FileReplaced where the database has another file in its place.
    explicit ReadMoment(Database &database);
    ~ReadMoment();
    ReadMoment(const ReadMoment &) = delete;
    ReadMoment &operator=(const ReadMoment &) = delete;

    // The database at the moment, for tables and queries that are closed before the moment goes. Takes no writes.
    Database &database() { return m_database; }
    // In folders of other computers a file cannot be written while it is read. There what is read is to be put aside at
    // once, and the moment ended before anything else is done.
    bool keepsWritersOut() const { return m_keepsWritersOut; }

    // All has been read. Throws FileReplaced when the file was replaced under the reading, which is worth nothing then.
    void end();

private:
    Database m_database;
    bool m_keepsWritersOut;
};

} // namespace Engine
