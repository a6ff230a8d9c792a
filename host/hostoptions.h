#pragma once

#include "host/hostlook.h"

#include <QString>
#include <QStringList>

namespace Tallymere {

struct HostOptions
{
    QString module; // the module's file; empty: where it is installed
    QString user;
    QString data; // folder to use from now on; empty: as set
    HostLook look = HostLook::Desktop;
    bool open = false; // opens the module's window at once

    // What is wrong with the command line, or what --help and --version print.
    QString message;
    enum class Outcome { Start, Inform, Refuse };
    Outcome outcome = Outcome::Start;
};

HostOptions readOptions(const QStringList &arguments);

// The name the user has logged in to the system with.
QString loginName();

} // namespace Tallymere
