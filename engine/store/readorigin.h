#pragma once

#include <chrono>
#include <QDateTime>
#include <QString>

namespace Engine {

// Whom a reading is meant for: the server that is written to, or a standby server that copies it, where the session wants
// that (Session::readsFromStandby) and there is one.
enum class ReadFrom { Primary, Standby };

// Where something has been read, and of when it is.
struct ReadOrigin
{
    enum class Reason {
        NotWanted,
        Standby, // it was read from one
        NoneThere, // no standby server answers
        Behind, // it had not yet what this program has written
        Failed, // it ended the reading, which was begun anew
    };

    Reason reason = Reason::NotWanted;
    QString server; // the standby, as it is addressed
    QDateTime asOf; // whatever was committed before is there
    std::chrono::milliseconds behind{0}; // between that and the reading; 0 when the standby had everything

    bool isStandby() const { return reason == Reason::Standby; }
};

} // namespace Engine
