#pragma once

#include <QString>

namespace Engine {

// What this program has written to servers, over whatever connection of whatever thread, as far as those have to know it who
// read where it arrives later.
class OwnWrites
{
public:
    static void note(); // something has been written, or may have been

    static quint64 count(); // grows with each of them
    // A place in the log of the primary of a database that all of it lies before: the same one until something is written.
    // To be told are the count, and where the log has ended after it was taken.
    static qint64 position(const QString &database, quint64 count, qint64 logEnd);
};

} // namespace Engine
