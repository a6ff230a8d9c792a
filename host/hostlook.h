#pragma once

#include <optional>
#include <QString>

namespace Tallymere {

// How the application looks: as the desktop says, or light or dark whatever it says. Modules follow, as they take style and
// palette from here.
enum class HostLook { Desktop, Light, Dark };

std::optional<HostLook> lookNamed(const QString &name); // "desktop", "light", "dark"

// To be called once there is an application. Where the desktop brings style and colours of its own, those stay; where it
// brings none, as under a bare X server, these are Qt's Fusion in colours that suit it, dark where the desktop's settings ask
// for that.
void takeLook(HostLook look);

} // namespace Tallymere
