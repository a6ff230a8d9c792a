#pragma once

#include "base/settingsstore.h"

#include <optional>
#include <QRect>
#include <QString>

// Where the windows stood last.

namespace Tallymere {

// The section is the screen by its component name.
void saveFormPos(SettingsStore &settings, const QRect &geometry, const QString &section,
                 const ScreenSetting<QRect> &key);
std::optional<QRect> setFormPos(const SettingsStore &settings, const QString &section,
                                const ScreenSetting<QRect> &key);

} // namespace Tallymere
