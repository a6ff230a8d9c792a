#include "base/formposition.h"

#include "base/trace.h"

namespace Tallymere {

void saveFormPos(SettingsStore &settings, const QRect &geometry, const QString &section,
                 const ScreenSetting<QRect> &key)
{
    settings.setValue(section, key, geometry);
}

std::optional<QRect> setFormPos(const SettingsStore &settings, const QString &section,
                                const ScreenSetting<QRect> &key)
{
    qCDebug(trace) << "Entering SetFormPos...";
    const QRect kept = settings.value(section, key);
    qCDebug(trace) << "Exiting SetFormPos";
    return kept.isValid() ? std::optional(kept) : std::nullopt;
}

} // namespace Tallymere
