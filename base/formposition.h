#pragma once

#include "base/settingsstore.h"

#include <optional>
#include <QRect>
#include <QString>

// Where the windows stood last.

namespace Tallymere {

// The setting under which a screen, the section, keeps what it remembers.
QString formSetting(const QString &section);
void saveFormPos(SettingsStore &settings, const QRect &geometry, const QString &section, const QString &key);
std::optional<QRect> setFormPos(const SettingsStore &settings, const QString &section, const QString &key);

} // namespace Tallymere
