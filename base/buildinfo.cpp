#include "base/buildinfo.h"

#include <QCoreApplication>
#include <QVersionNumber>

namespace Tallymere {

BuildInfo getBuildInfo()
{
    const QVersionNumber version = QVersionNumber::fromString(QCoreApplication::applicationVersion());
    const auto part = [&](int index) { return static_cast<quint16>(version.segmentAt(index)); };
    return {part(0), part(1), part(2), part(3)};
}

QString strBuildInfo()
{
    const BuildInfo info = getBuildInfo();
    return QVersionNumber({info.major, info.minor, info.release, info.build}).toString();
}

} // namespace Tallymere
