#pragma once

#include <QString>

namespace Tallymere {

struct BuildInfo
{
    quint16 major = 0, minor = 0, release = 0, build = 0;
};
BuildInfo getBuildInfo(); // of the running program; missing parts are 0
QString strBuildInfo(); // "1.0.2.1"

} // namespace Tallymere
